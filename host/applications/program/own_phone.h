#pragma once

#include "host/console/phone.h"

namespace host::application {

/// The phone, for console lines that run in an application, such as `print` and `expect`. Fingers,
/// buttons and time belong to the home screen.
class OwnPhone final : public console::Phone {
 public:
  void advance(double) override {}
  void touch(int, console::TouchPhase, CGPoint) override {}
  std::optional<CGPoint> centre_of(objc::Object object) override;
  console::Refusal wheel(CGPoint, CGPoint, console::WheelKind) override { return refused(); }
  console::Refusal right_click(CGPoint) override { return refused(); }
  console::Refusal type(std::string_view) override { return refused(); }
  console::Refusal key(std::string_view) override { return refused(); }
  console::Refusal press(console::Button) override { return refused(); }
  console::Refusal button(console::Button, console::ButtonPhase) override { return refused(); }
  console::Refusal system(console::SystemEvent, std::string_view) override { return refused(); }
  console::Refusal gesture(std::string_view) override { return refused(); }
  console::Refusal screenshot(const std::string&) override { return refused(); }
  console::Refusal compare(const std::string&) override { return refused(); }
  console::Refusal record(const std::string&) override { return refused(); }
  console::Refusal end_recording() override { return refused(); }
  console::Refusal unrest() override { return refused(); }
  console::Refusal talk_to(std::string_view) override { return refused(); }

 private:
  static console::Refusal refused() { return "an application cannot do this"; }
};

}  // namespace host::application
