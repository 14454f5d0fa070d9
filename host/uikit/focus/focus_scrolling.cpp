#include "host/uikit/focus/focus_scrolling.h"

#include <algorithm>

#include "host/uikit/focus/focus_stops.h"
#include "host/uikit/scroll/scroll_view.h"
#include "platform/CoreGraphics/CGRect.h"

namespace host::uikit {
namespace {

// In points: a part of a row, so that content moves no further than necessary.
constexpr CGFloat kScrollStep = 20;

/// The directions in which content moves for a step, the preferred one first.
std::vector<CGPoint> ways_of(FocusStep step) {
  switch (step) {
    case FocusStep::Next:
      return {{0, 1}, {1, 0}};
    case FocusStep::Previous:
      return {{0, -1}, {-1, 0}};
    case FocusStep::Up:
      return {{0, -1}};
    case FocusStep::Down:
      return {{0, 1}};
    case FocusStep::Left:
      return {{-1, 0}};
    case FocusStep::Right:
      break;
  }
  return {{1, 0}};
}

void scroll(UIScrollView view, CGPoint by) {
  objc::state_of<ScrollView>(view).turn(by, WheelKind::Precise);
  view.layoutIfNeeded();
}

/// How far content moves to bring the part from `low` to `high` between two edges.
CGFloat lack(CGFloat low, CGFloat high, CGFloat first, CGFloat last) {
  if (high - low > last - first) return 0;
  if (low < first) return low - first;
  return std::max(0.0, high - last);
}

}  // namespace

UIScrollView scroll_view_around(UIView view) {
  for (UIView outer = view.superview(); outer; outer = outer.superview()) {
    if (outer.isKindOfClass(UIScrollView::cls())) return objc::cast<UIScrollView>(outer);
  }
  return nil;
}

bool Scrolling::can_go_on() const {
  return objc::state_of<ScrollView>(*view).can_turn(way);
}

Scrolling scrolling_around(UIView view, FocusStep step) {
  const auto ways = ways_of(step);
  for (UIScrollView outer = scroll_view_around(view); outer; outer = scroll_view_around(outer)) {
    for (const CGPoint way : ways) {
      const Scrolling found{objc::Ref<UIScrollView>::retain(outer), way};
      if (found.can_go_on()) return found;
    }
  }
  return {};
}

CGRect scroll_on(const Scrolling& scrolling, CGRect place) {
  const CGPoint before = scrolling.view->contentOffset();
  scroll(*scrolling.view, {scrolling.way.x * kScrollStep, scrolling.way.y * kScrollStep});
  const CGPoint after = scrolling.view->contentOffset();
  return CGRectOffset(place, before.x - after.x, before.y - after.y);
}

CGRect turn_page(const Scrolling& pages, CGRect place) {
  objc::state_of<ScrollView>(*pages.view).turn(pages.way, WheelKind::Notched);
  const CGSize page = pages.view->bounds().size;
  return CGRectOffset(place, -pages.way.x * page.width, -pages.way.y * page.height);
}

void bring_into_sight(UIView view) {
  for (UIScrollView outer = scroll_view_around(view); outer; outer = scroll_view_around(outer)) {
    if (outer.isPagingEnabled() || !outer.isScrollEnabled()) continue;
    const CGRect part = place_in(view, outer);
    const CGRect all = outer.bounds();
    const UIEdgeInsets inset = outer.contentInset();
    const CGPoint by{
        lack(part.min_x(), part.max_x(), all.min_x() + inset.left, all.max_x() - inset.right),
        lack(part.min_y(), part.max_y(), all.min_y() + inset.top, all.max_y() - inset.bottom)};
    if (by != CGPoint()) scroll(outer, by);
  }
}

}  // namespace host::uikit
