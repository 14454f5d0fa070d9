#include "host/recording/stroke.h"

#include <algorithm>
#include <cmath>

namespace host::recording {
namespace {

constexpr double kFrame = 1.0 / 60;
constexpr double kTimeTolerance = 1e-6;
// A movement of the script may last so long, in seconds, and so many reports are compared.
constexpr double kLongestGlide = 60;
constexpr std::size_t kMostReports = 3600;

/// Whether a steady movement from the first report to the last passes all between them at their
/// times.
bool is_straight(std::span<const Touch> way, double bend) {
  const Touch& first = way.front();
  const Touch& last = way.back();
  const double seconds = last.time - first.time;
  return std::all_of(way.begin(), way.end(), [&](const Touch& touch) {
    const double part = (touch.time - first.time) / seconds;
    const double x = first.point.x + (last.point.x - first.point.x) * part;
    const double y = first.point.y + (last.point.y - first.point.y) * part;
    return std::abs(x - touch.point.x) <= bend && std::abs(y - touch.point.y) <= bend;
  });
}

/// Whether the console's movement would report the finger just as often and at the same times.
bool has_same_reports(std::span<const Touch> way) {
  const double seconds = way.back().time - way.front().time;
  const auto count = static_cast<double>(way.size() - 1);
  if (std::max(1.0, std::round(seconds / kFrame)) != count) return false;
  for (std::size_t i = 1; i < way.size(); ++i) {
    const double due = way.front().time + seconds * static_cast<double>(i) / count;
    if (std::abs(way[i].time - due) > kTimeTolerance) return false;
  }
  return true;
}

bool rests_within(std::span<const Touch> way, double longest) {
  for (std::size_t i = 1; i < way.size(); ++i) {
    if (way[i].time - way[i - 1].time > longest) return true;
  }
  return false;
}

/// Whether one steady movement stands for all these reports.
bool is_glide(std::span<const Touch> way, const Fidelity& fidelity) {
  const double seconds = way.back().time - way.front().time;
  if (seconds <= 0 || seconds > kLongestGlide) return false;
  if (fidelity.keeps_reports ? !has_same_reports(way) : rests_within(way, fidelity.rest))
    return false;
  return is_straight(way, fidelity.bend);
}

/// The number of reports from `at` on for which one movement stands, from the report before.
std::size_t count_of_glide(std::span<const Touch> touches, std::size_t at,
                           const Fidelity& fidelity) {
  std::size_t count = 0;
  if (at == 0) return count;
  while (at + count < touches.size() && count < kMostReports &&
         touches[at + count].phase == screen::TouchPhase::Moved &&
         is_glide(touches.subspan(at - 1, count + 2), fidelity))
    ++count;
  return count;
}

}  // namespace

std::vector<Step> steps_of(std::span<const Touch> touches, const Fidelity& fidelity) {
  std::vector<Step> steps;
  for (std::size_t at = 0; at < touches.size(); ++at) {
    const std::size_t count = count_of_glide(touches, at, fidelity);
    if (count > 0) at += count - 1;
    steps.push_back({touches[at], count > 0});
  }
  return steps;
}

}  // namespace host::recording
