#pragma once

#include "tests/host/uikit/scroll/scroll_listener.h"

namespace host::test {

/// A scroll view over the whole screen, with content six screens tall and a delegate.
class ScrollViewTest : public ScrollTest {
 public:
  ScrollViewTest() {
    ScrollListener::make_class();
    listener = TestScrollListener::alloc().init();
    scroll = UIScrollView::alloc().initWithFrame(kScreen);
    scroll.setContentSize({375, 4000});
    scroll.setDelegate(listener);
    window.addSubview(scroll);
    advance(0.1);
    events().clear();
  }
  ~ScrollViewTest() override {
    scroll.setDelegate(nil);
    scroll.removeFromSuperview();
    scroll.release();
    listener.release();
  }

  ScrollListener& heard() { return objc::state_of<ScrollListener>(listener); }
  CGFloat y() { return scroll.contentOffset().y; }
  void make_pages() {
    scroll.setContentSize({3 * 375, 667});
    scroll.setPagingEnabled(YES);
  }

  TestScrollListener listener;
  UIScrollView scroll;
};

}  // namespace host::test
