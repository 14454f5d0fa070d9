#pragma once

#include <functional>

#include "objc/class_builder.h"
#include "platform/UIKit/UIScrollView.h"
#include "tests/host/uikit/scroll/scroll_test.h"

namespace host::test {

struct TestScrollListener
    : objc::Bound<TestScrollListener, "TestScrollListener", UIScrollViewDelegate> {};

/// Records every delegate message of a scroll view.
class ScrollListener : public objc::Implementation<ScrollListener, TestScrollListener> {
 public:
  explicit ScrollListener(TestScrollListener owner) : Implementation(owner) {}

  CGPoint velocity;
  CGPoint predicted;
  std::optional<CGPoint> wanted_target;
  std::function<void(UIScrollView)> on_scroll;
  std::function<void(UIScrollView)> on_end_dragging;

  void did_scroll(UIScrollView view) {
    ScrollTest::events().push_back("didScroll");
    if (on_scroll) on_scroll(view);
  }
  void will_begin_dragging(UIScrollView) { ScrollTest::events().push_back("willBeginDragging"); }
  void will_end_dragging(UIScrollView, CGPoint with_velocity, CGPoint* target) {
    ScrollTest::events().push_back("willEndDragging");
    velocity = with_velocity;
    predicted = *target;
    if (wanted_target) *target = *wanted_target;
  }
  void did_end_dragging(UIScrollView view, BOOL decelerates) {
    ScrollTest::events().push_back(decelerates ? "didEndDragging decelerates"
                                               : "didEndDragging rests");
    if (on_end_dragging) on_end_dragging(view);
  }
  void will_begin_decelerating(UIScrollView) {
    ScrollTest::events().push_back("willBeginDecelerating");
  }
  void did_end_decelerating(UIScrollView) { ScrollTest::events().push_back("didEndDecelerating"); }
  void did_end_animation(UIScrollView) {
    ScrollTest::events().push_back("didEndScrollingAnimation");
  }

  static void make_class() {
    if (TestScrollListener::cls()) return;
    objc::ClassBuilder("TestScrollListener", "NSObject")
        .state<ScrollListener>()
        .method<&ScrollListener::did_scroll>("scrollViewDidScroll:")
        .method<&ScrollListener::will_begin_dragging>("scrollViewWillBeginDragging:")
        .method<&ScrollListener::will_end_dragging>(
            "scrollViewWillEndDragging:withVelocity:targetContentOffset:")
        .method<&ScrollListener::did_end_dragging>("scrollViewDidEndDragging:willDecelerate:")
        .method<&ScrollListener::will_begin_decelerating>("scrollViewWillBeginDecelerating:")
        .method<&ScrollListener::did_end_decelerating>("scrollViewDidEndDecelerating:")
        .method<&ScrollListener::did_end_animation>("scrollViewDidEndScrollingAnimation:")
        .finish();
  }
};

}  // namespace host::test
