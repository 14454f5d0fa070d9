#include "host/uikit/touch/velocity_tracker.h"

#include <algorithm>

namespace host::uikit {
namespace {

constexpr double kHistory = 0.1;
// A finger that lifts between two reports of the screen was still moving.
constexpr double kReportInterval = 0.02;
// Avoids a division by zero for reports with equal times.
constexpr double kLeastInterval = 1e-6;

}  // namespace

void VelocityTracker::add(CGPoint point, double time) {
  if (!samples_.empty() && time - samples_.back().time < kLeastInterval) {
    samples_.back().point = point;
    return;
  }
  samples_.push_back({point, time});
  // One sample older than the history is kept: the movement into the history starts there.
  while (samples_.size() > 2 && samples_[1].time < time - kHistory)
    samples_.pop_front();
}

CGPoint VelocityTracker::velocity(double time) const {
  if (samples_.size() < 2) return {};
  const double oldest = time - kHistory;
  const double idle = time - samples_.back().time;
  if (idle >= kHistory) return {};
  CGPoint sum;
  double weights = 0;
  for (std::size_t i = 1; i < samples_.size(); ++i) {
    const Sample& from = samples_[i - 1];
    const Sample& to = samples_[i];
    if (to.time <= oldest) continue;
    const double seconds = to.time - from.time;
    // Weighted by its duration within the history and by how recent it is.
    const double within = to.time - std::max(from.time, oldest);
    const double weight = within * (to.time - oldest);
    sum.x += weight * (to.point.x - from.point.x) / seconds;
    sum.y += weight * (to.point.y - from.point.y) / seconds;
    weights += weight;
  }
  if (idle > kReportInterval) weights += idle * kHistory;
  if (weights <= 0) return {};
  return {sum.x / weights, sum.y / weights};
}

}  // namespace host::uikit
