#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/screen/input.h"

/// A phone on which nothing happens but that something was done to it.
class NoPhone final : public host::screen::Input {
 public:
  bool is_used() const { return is_used_; }

  void touch(int, host::screen::TouchPhase, CGPoint) override { is_used_ = true; }
  void wheel(CGPoint, CGPoint, host::screen::WheelKind) override { is_used_ = true; }
  void type(std::string_view) override { is_used_ = true; }
  void compose(std::string_view, int) override { is_used_ = true; }
  void key(std::string_view) override { is_used_ = true; }
  std::optional<CGRect> caret() const override { return std::nullopt; }
  void right_click(CGPoint) override { is_used_ = true; }
  void press(host::screen::Button) override { is_used_ = true; }
  void button(host::screen::Button, host::screen::ButtonPhase) override { is_used_ = true; }
  void shake() override { is_used_ = true; }
  void drop(std::vector<std::string>) override { is_used_ = true; }
  void close() override { is_used_ = true; }

 private:
  bool is_used_ = false;
};
