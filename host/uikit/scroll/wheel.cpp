#include "host/uikit/scroll/wheel.h"

#include <cmath>

#include "host/uikit/scroll/scroll_view.h"
#include "host/uikit/touch/touch_input.h"

namespace host::uikit {
namespace {

// A movement on a touchpad is never quite straight: what is less than this share of the other axis
// is not meant.
constexpr CGFloat kSidewaysShare = 0.5;

CGPoint straightened(CGPoint by) {
  if (std::abs(by.x) < std::abs(by.y) * kSidewaysShare) return {0, by.y};
  if (std::abs(by.y) < std::abs(by.x) * kSidewaysShare) return {by.x, 0};
  return by;
}

bool turn_from(UIView view, CGPoint by, WheelKind kind) {
  for (; view; view = view.superview()) {
    if (!view.isKindOfClass(UIScrollView::cls())) continue;
    auto& scroll = objc::state_of<ScrollView>(view);
    if (!scroll.can_turn(by)) continue;
    const auto kept = objc::Ref<UIView>::retain(view);
    scroll.turn(by, kind);
    return true;
  }
  return false;
}

}  // namespace

bool turn_wheel(CGPoint screen_point, CGPoint by, WheelKind kind) {
  const auto innermost = objc::Ref<UIView>::retain(hit_of_pointer(screen_point).view);
  if (!innermost) return false;
  const CGPoint meant = straightened(by);
  const bool across = turn_from(innermost.get(), {meant.x, 0}, kind);
  const bool down = turn_from(innermost.get(), {0, meant.y}, kind);
  return across || down;
}

}  // namespace host::uikit
