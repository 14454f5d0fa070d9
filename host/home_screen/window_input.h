#pragma once

#include <functional>

#include "host/home_screen/music.h"
#include "host/home_screen/recorded_hands.h"

namespace host::launcher {

/// Applies the user's actions in the window to the phone.
class WindowInput final : public screen::Input {
 public:
  WindowInput(RecordedHands& hands, std::function<void()> on_close)
      : hands_(hands), on_close_(std::move(on_close)) {}

  void touch(int finger, screen::TouchPhase phase, CGPoint point) override {
    hands_.touch(finger, phase, point);
  }
  void wheel(CGPoint point, CGPoint by, screen::WheelKind kind) override {
    hands_.wheel(point, by, kind);
  }
  // Failures are ignored: the user need not be told that nothing is taking a key.
  void type(std::string_view text) override { hands_.type(text); }
  void compose(std::string_view text, int caret) override { hands_.compose(text, caret); }
  void key(std::string_view name) override { hands_.key(name); }
  std::optional<CGRect> caret() const override { return Hands::caret(); }
  void right_click(CGPoint point) override { hands_.right_click(point); }
  void press(screen::Button button) override { hands_.press(button); }
  void button(screen::Button button, screen::ButtonPhase phase) override {
    hands_.button(button, phase);
  }
  void shake() override { hands_.shake(); }
  void drop(std::vector<std::string> things) override {
    hands_.note("# Files were dropped on the window here, which no script can do.");
    play_files(std::move(things));
  }
  void close() override { on_close_(); }

 private:
  RecordedHands& hands_;
  std::function<void()> on_close_;
};

}  // namespace host::launcher
