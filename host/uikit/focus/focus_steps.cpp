#include "host/uikit/focus/focus_steps.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <numeric>

namespace host::uikit {
namespace {

// What lies aside counts as further away than what lies ahead.
constexpr CGFloat kAsideWeight = 3;
// Among places that are equally near, the one whose middle is less far aside.
constexpr CGFloat kMiddleWeight = 0.1;

constexpr CGFloat kNowhere = std::numeric_limits<CGFloat>::infinity();

bool is_in_line(CGRect one, CGRect other) {
  const CGFloat lower = std::min(one.size.height, other.size.height);
  return std::abs(one.centre().y - other.centre().y) < lower / 2;
}

/// A place as it is seen along a direction: `near` and `far` increase with the distance.
struct Ahead {
  CGFloat near, far;
  CGFloat left, right;
  CGFloat middle() const { return (near + far) / 2; }
};

Ahead seen_along(FocusStep step, CGRect place) {
  switch (step) {
    case FocusStep::Up:
      return {-place.max_y(), -place.min_y(), place.min_x(), place.max_x()};
    case FocusStep::Left:
      return {-place.max_x(), -place.min_x(), place.min_y(), place.max_y()};
    case FocusStep::Right:
      return {place.min_x(), place.max_x(), place.min_y(), place.max_y()};
    case FocusStep::Down:
    case FocusStep::Next:
    case FocusStep::Previous:
      break;
  }
  return {place.min_y(), place.max_y(), place.min_x(), place.max_x()};
}

/// Returns how far away the place is for an arrow key; infinity when it is not in this direction.
/// What is beside at another height is reached from above and below only.
CGFloat distance(FocusStep step, const Ahead& from, const Ahead& place) {
  const CGFloat aside = std::max({0.0, place.left - from.right, from.left - place.right});
  const bool stays_level = step == FocusStep::Left || step == FocusStep::Right;
  if (place.near < from.middle() || (stays_level && aside > 0)) return kNowhere;
  const CGFloat ahead = std::max(0.0, place.near - from.far);
  const CGFloat middles = std::abs(place.left + place.right - from.left - from.right) / 2;
  return ahead + kAsideWeight * aside + kMiddleWeight * middles;
}

std::optional<std::size_t> nearest(CGRect from, FocusStep step, const std::vector<CGRect>& places) {
  std::optional<std::size_t> found;
  CGFloat least = kNowhere;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (places[i] == from) continue;
    const CGFloat away = distance(step, seen_along(step, from), seen_along(step, places[i]));
    if (away >= least) continue;
    least = away;
    found = i;
  }
  return found;
}

std::optional<std::size_t> beside(CGRect from, FocusStep step, std::vector<CGRect> places) {
  places.push_back(from);
  auto order = reading_order(places);
  std::erase_if(order, [&](std::size_t i) { return i + 1 < places.size() && places[i] == from; });
  const auto here = std::find(order.begin(), order.end(), places.size() - 1);
  if (step == FocusStep::Next) {
    const auto next = std::next(here);
    return next == order.end() ? std::nullopt : std::optional(*next);
  }
  return here == order.begin() ? std::nullopt : std::optional(*std::prev(here));
}

}  // namespace

std::vector<std::size_t> reading_order(const std::vector<CGRect>& places) {
  std::vector<std::size_t> order(places.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](std::size_t one, std::size_t other) {
    return places[one].centre().y < places[other].centre().y;
  });
  for (auto line = order.begin(); line != order.end();) {
    const auto end = std::find_if(
        line, order.end(), [&](std::size_t i) { return !is_in_line(places[*line], places[i]); });
    // A place without height is in no line, not even its own.
    const auto after = std::max(end, std::next(line));
    std::stable_sort(line, after, [&](std::size_t one, std::size_t other) {
      return places[one].min_x() < places[other].min_x();
    });
    line = after;
  }
  return order;
}

std::optional<std::size_t> place_after(CGRect from, FocusStep step,
                                       const std::vector<CGRect>& places) {
  return is_reading(step) ? beside(from, step, places) : nearest(from, step, places);
}

std::optional<std::size_t> outermost_place(FocusStep step, const std::vector<CGRect>& places) {
  if (places.empty()) return std::nullopt;
  const auto order = reading_order(places);
  return step == FocusStep::Previous ? order.back() : order.front();
}

}  // namespace host::uikit
