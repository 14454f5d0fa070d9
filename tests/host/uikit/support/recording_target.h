#pragma once

#include <functional>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIControl.h"
#include "tests/host/uikit/support/uikit_test.h"

namespace host::test {

struct TestTarget : objc::Bound<TestTarget, "TestTarget", NSObject> {};

/// A target of actions and delegate of recognisers that records each action with its name and
/// state.
class RecordingTarget : public objc::Implementation<RecordingTarget, TestTarget> {
 public:
  explicit RecordingTarget(TestTarget owner) : Implementation(owner) {}

  std::string name;
  std::function<void(UIGestureRecognizer)> on_gesture;
  BOOL receives_touches = YES;
  BOOL goes_together = NO;

  void handle_gesture(UIGestureRecognizer recognizer) {
    static const char* const states[] = {"possible", "began",     "changed",
                                         "ended",    "cancelled", "failed"};
    UIKitTest::events().push_back(name + " " + states[recognizer.state()]);
    if (on_gesture) on_gesture(recognizer);
  }
  void press_without_argument() { UIKitTest::events().push_back(name + " pressed"); }
  void press_with_sender(UIControl) { UIKitTest::events().push_back(name + " pressed by sender"); }
  void press_with_event(UIControl, UIEvent event) {
    UIKitTest::events().push_back(name + (event ? " pressed with event" : " pressed without"));
  }
  BOOL should_receive_touch(UIGestureRecognizer, UITouch) { return receives_touches; }
  BOOL should_recognize_simultaneously(UIGestureRecognizer, UIGestureRecognizer) {
    return goes_together;
  }

  static objc::Ref<TestTarget> make(const char* name) {
    make_class();
    auto target = objc::Ref<TestTarget>::adopt(TestTarget::alloc().init());
    objc::state_of<RecordingTarget>(target.get()).name = name;
    return target;
  }

  /// Adds a recogniser of that class to the view, which sends its action to `target`.
  template <class Recognizer>
  static Recognizer add(UIView view, TestTarget target) {
    const auto recognizer =
        Recognizer::alloc().initWithTarget(target, "handleGesture:"_sel).autorelease();
    view.addGestureRecognizer(recognizer);
    return recognizer;
  }

 private:
  static void make_class() {
    if (TestTarget::cls()) return;
    objc::ClassBuilder("TestTarget", "NSObject")
        .state<RecordingTarget>()
        .method<&RecordingTarget::handle_gesture>("handleGesture:")
        .method<&RecordingTarget::press_without_argument>("press")
        .method<&RecordingTarget::press_with_sender>("press:")
        .method<&RecordingTarget::press_with_event>("press:event:")
        .method<&RecordingTarget::should_receive_touch>("gestureRecognizer:shouldReceiveTouch:")
        .method<&RecordingTarget::should_recognize_simultaneously>(
            "gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:")
        .finish();
  }
};

}  // namespace host::test
