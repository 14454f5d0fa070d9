#include "host/activator/gesture/edge_slide.h"

#include <algorithm>
#include <cmath>

#include "host/activator/event/event_kinds.h"

namespace host::activator {
namespace {

/// A finger that lands within this distance of an edge, in points, comes from outside.
constexpr CGFloat kEdge = 15;
/// The length of a corner along both of its edges.
constexpr CGFloat kCorner = 50;
/// The distance after which the slide is decided.
constexpr CGFloat kDecisiveDistance = 40;
/// A slide from a corner moves inwards along both axes: the shorter distance is at least this share
/// of the longer one.
constexpr CGFloat kSlant = 0.35;

struct Side {
  bool is_near_start;  // the left or the top edge
  CGFloat distance;
};

Side side_of(CGFloat position, CGFloat length) {
  const bool is_near_start = position < length / 2;
  return {is_near_start, is_near_start ? position : length - position};
}

}  // namespace

std::optional<EdgeSlide> EdgeSlide::begin(CGSize screen, CGPoint point) {
  const CGFloat nearest =
      std::min(side_of(point.x, screen.width).distance, side_of(point.y, screen.height).distance);
  if (nearest > kEdge) return std::nullopt;
  return EdgeSlide(screen, point);
}

EdgeSlide::Verdict EdgeSlide::move(CGPoint point) {
  CGPoint inwards{point.x - start_.x, point.y - start_.y};
  if (std::hypot(inwards.x, inwards.y) < kDecisiveDistance) return Verdict::Undecided;
  if (!side_of(start_.x, screen_.width).is_near_start) inwards.x = -inwards.x;
  if (!side_of(start_.y, screen_.height).is_near_start) inwards.y = -inwards.y;
  event_ = corner(inwards);
  if (!event_) event_ = edge(inwards);
  return event_ ? Verdict::SlidIn : Verdict::Other;
}

const char* EdgeSlide::corner(CGPoint inwards) const {
  const Side across = side_of(start_.x, screen_.width);
  const Side down = side_of(start_.y, screen_.height);
  if (across.distance > kCorner || down.distance > kCorner) return nullptr;
  const CGFloat longer = std::max(inwards.x, inwards.y);
  if (std::min(inwards.x, inwards.y) < kSlant * longer) return nullptr;
  if (down.is_near_start) return across.is_near_start ? kSlideInTopLeft : kSlideInTopRight;
  return across.is_near_start ? kSlideInBottomLeft : kSlideInBottomRight;
}

const char* EdgeSlide::edge(CGPoint inwards) const {
  const Side across = side_of(start_.x, screen_.width);
  const Side down = side_of(start_.y, screen_.height);
  if (across.distance <= kEdge && inwards.x > std::abs(inwards.y))
    return across.is_near_start ? kSlideInLeft : kSlideInRight;
  if (down.distance <= kEdge && inwards.y > std::abs(inwards.x))
    return down.is_near_start ? kSlideInTop : kSlideInBottom;
  return nullptr;
}

}  // namespace host::activator
