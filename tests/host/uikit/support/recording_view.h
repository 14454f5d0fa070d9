#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UITouch.h"
#include "tests/host/uikit/support/uikit_test.h"

namespace host::test {

struct TestRecordingView : objc::Bound<TestRecordingView, "TestRecordingView", UIView> {};

/// A view that records the messages it gets, prefixed with its name.
class RecordingView : public objc::Implementation<RecordingView, TestRecordingView> {
 public:
  explicit RecordingView(TestRecordingView owner) : Implementation(owner) {}

  std::string name;
  int layouts = 0;
  NSUInteger tap_count = 0;

  void touches_began(NSSet touches, UIEvent) {
    tap_count = objc::cast<UITouch>(touches.anyObject()).tapCount();
    tell("began");
  }
  void touches_moved(NSSet, UIEvent) { tell("moved"); }
  void touches_ended(NSSet, UIEvent) { tell("ended"); }
  void touches_cancelled(NSSet, UIEvent) { tell("cancelled"); }
  void will_move_to_superview(UIView view) { tell(view ? "will enter view" : "will leave view"); }
  void did_move_to_superview() { tell(self.superview() ? "entered view" : "left view"); }
  void will_move_to_window(UIWindow w) { tell(w ? "will enter window" : "will leave window"); }
  void did_move_to_window() { tell(self.window() ? "entered window" : "left window"); }
  void tint_color_did_change() { tell("tint"); }
  void layout_subviews() { ++layouts; }

  /// Returns only the touch messages recorded since the last call.
  static UIKitTest::Events told_of_touches() {
    auto told = UIKitTest::told();
    std::erase_if(told, [](const std::string& what) {
      return !what.ends_with(" began") && !what.ends_with(" moved") && !what.ends_with(" ended") &&
             !what.ends_with(" cancelled") && !what.ends_with(" pressed");
    });
    return told;
  }

  static TestRecordingView make(const char* name, CGRect frame) {
    make_class();
    const auto view =
        objc::cast<TestRecordingView>(TestRecordingView::alloc().initWithFrame(frame));
    objc::state_of<RecordingView>(view).name = name;
    return view.autorelease();
  }

 private:
  void tell(const char* what) { UIKitTest::events().push_back(name + " " + what); }

  static void make_class() {
    if (TestRecordingView::cls()) return;
    objc::ClassBuilder("TestRecordingView", "UIView")
        .state<RecordingView>()
        .method<&RecordingView::touches_began>("touchesBegan:withEvent:")
        .method<&RecordingView::touches_moved>("touchesMoved:withEvent:")
        .method<&RecordingView::touches_ended>("touchesEnded:withEvent:")
        .method<&RecordingView::touches_cancelled>("touchesCancelled:withEvent:")
        .method<&RecordingView::will_move_to_superview>("willMoveToSuperview:")
        .method<&RecordingView::did_move_to_superview>("didMoveToSuperview")
        .method<&RecordingView::will_move_to_window>("willMoveToWindow:")
        .method<&RecordingView::did_move_to_window>("didMoveToWindow")
        .method<&RecordingView::tint_color_did_change>("tintColorDidChange")
        .method<&RecordingView::layout_subviews>("layoutSubviews")
        .finish();
  }
};

}  // namespace host::test
