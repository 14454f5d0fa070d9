#pragma once

#include "host/uikit/focus/focus.h"
#include "platform/UIKit/UIButton.h"
#include "tests/host/uikit/support/page_test.h"

namespace host::test {

/// A phone's screen with a keyboard.
class FocusTest : public PageTest {
 protected:
  void TearDown() override {
    focus.end();
    PageTest::TearDown();
  }

  /// A button that records its presses under its name.
  UIButton add_button(UIView parent, const char* name, CGRect frame) {
    const UIButton button = UIButton::alloc().initWithFrame(frame).autorelease();
    targets.push_back(RecordingTarget::make(name));
    button.addTarget(*targets.back(), "press"_sel, UIControlEventTouchUpInside);
    parent.addSubview(button);
    return button;
  }
  /// Presses the key and lets the turn end.
  bool key(std::string_view name) {
    const bool done = focus.press_key(name);
    advance(0.01);
    return done;
  }
  /// Presses Return and lets its finger lift.
  bool press() {
    const bool done = focus.press_key("return");
    advance(0.3);
    return done;
  }
  CGRect ring() const { return focus.ring().frame(); }

  uikit::Focus focus{loop};
  std::vector<objc::Ref<TestTarget>> targets;
};

}  // namespace host::test
