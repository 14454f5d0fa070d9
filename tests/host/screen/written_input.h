#pragma once

#include <fmt/format.h>

#include <string>
#include <vector>

#include "host/screen/input.h"

/// Records the user's actions as text.
class WrittenInput : public host::screen::Input {
 public:
  void touch(int finger, host::screen::TouchPhase phase, CGPoint point) override {
    done.push_back(
        fmt::format("touch {} {} {:g} {:g}", finger, static_cast<int>(phase), point.x, point.y));
  }
  void wheel(CGPoint point, CGPoint by, host::screen::WheelKind kind) override {
    const char* unit = kind == host::screen::WheelKind::Notched ? "notches" : "points";
    done.push_back(
        fmt::format("wheel {:g} {:g} by {:g} {:g} {}", point.x, point.y, by.x, by.y, unit));
  }
  void type(std::string_view text) override { done.push_back(fmt::format("type {}", text)); }
  void compose(std::string_view text, int caret) override {
    done.push_back(fmt::format("compose {} {}", text, caret));
  }
  void key(std::string_view name) override { done.push_back(fmt::format("key {}", name)); }
  std::optional<CGRect> caret() const override { return caret_place; }
  void right_click(CGPoint point) override {
    done.push_back(fmt::format("right click {:g} {:g}", point.x, point.y));
  }
  void press(host::screen::Button button) override {
    done.push_back(fmt::format("press {}", static_cast<int>(button)));
  }
  void button(host::screen::Button button, host::screen::ButtonPhase phase) override {
    const char* way = phase == host::screen::ButtonPhase::Down ? "push" : "let go";
    done.push_back(fmt::format("{} {}", way, static_cast<int>(button)));
  }
  void shake() override { done.push_back("shake"); }
  void drop(std::vector<std::string> things) override {
    done.push_back(fmt::format("drop {}", fmt::join(things, ", ")));
  }
  void close() override { done.push_back("close"); }

  std::vector<std::string> done;
  std::optional<CGRect> caret_place;
};
