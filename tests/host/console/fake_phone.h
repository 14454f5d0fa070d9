#pragma once

#include <fmt/format.h>

#include <string>
#include <vector>

#include "host/console/phone.h"
#include "platform/Foundation/NSString.h"

/// Records all requests. Texts represent views.
class FakePhone : public host::console::Phone {
 public:
  using Refusal = host::console::Refusal;

  void advance(double seconds) override {
    now += seconds;
    done.push_back(fmt::format("advance {:.4g}", seconds));
  }
  void touch(int finger, host::console::TouchPhase phase, CGPoint point) override {
    constexpr const char* kNames[] = {"began", "moved", "ended", "cancelled"};
    done.push_back(fmt::format("{}{} {:.4g} {:.4g}",
                               finger == 1 ? "" : fmt::format("finger {} ", finger),
                               kNames[static_cast<int>(phase)], point.x, point.y));
  }
  Refusal wheel(CGPoint point, CGPoint by, host::console::WheelKind kind) override {
    const bool notched = kind == host::console::WheelKind::Notched;
    return note("wheel", fmt::format("{:.4g} {:.4g} by {:.4g} {:.4g} {}", point.x, point.y, by.x,
                                     by.y, notched ? "notches" : "points"));
  }
  std::optional<CGPoint> centre_of(objc::Object object) override {
    if (objc::cast<NSObject>(object).isKindOfClass(NSString::cls())) return CGPoint{30, 40};
    return std::nullopt;
  }
  Refusal right_click(CGPoint point) override {
    return note("right-click", fmt::format("{:.4g} {:.4g}", point.x, point.y));
  }
  Refusal type(std::string_view text) override { return note("type", text); }
  Refusal key(std::string_view name) override { return note("key", name); }
  Refusal press(host::console::Button button) override {
    return note("press", fmt::format("{}", static_cast<int>(button)));
  }
  Refusal button(host::console::Button button, host::console::ButtonPhase phase) override {
    const bool down = phase == host::console::ButtonPhase::Down;
    return note(down ? "push" : "let go", fmt::format("{}", static_cast<int>(button)));
  }
  Refusal system(host::console::SystemEvent event, std::string_view detail) override {
    return note("system", fmt::format("{} {}", static_cast<int>(event), detail));
  }
  Refusal gesture(std::string_view event) override { return note("gesture", event); }
  Refusal screenshot(const std::string& file) override { return note("screenshot", file); }
  Refusal compare(const std::string& file) override { return note("compare", file); }
  Refusal record(const std::string& file) override { return note("record", file); }
  Refusal end_recording() override { return note("recorded", ""); }
  void carried_out(std::string_view line) override { told.emplace_back(line); }
  Refusal unrest() override { return note("rest", ""); }
  Refusal talk_to(std::string_view process) override { return note("process", process); }

  std::optional<std::string> answer_elsewhere(const std::string&) override {
    if (elsewhere.empty()) return std::nullopt;
    return elsewhere;
  }

  double now = 0;
  std::string elsewhere;
  Refusal refusal;
  std::vector<std::string> done;
  std::vector<std::string> told;

 private:
  Refusal note(std::string_view what, std::string_view detail) {
    done.push_back(fmt::format("{} {}", what, detail));
    return refusal;
  }
};
