#pragma once

#include <filesystem>
#include <functional>

#include "host/console/phone.h"
#include "host/home_screen/recorded_hands.h"
#include "host/process/phone_screen.h"

namespace host::launcher {

/// This process's phone, for the console's commands.
class ConsolePhone final : public console::Phone {
 public:
  /// The parts that differ between phones.
  struct Parts {
    std::function<void(double seconds)> advance;
    /// Draws everything that is due and hands over the picture.
    std::function<console::Refusal(const process::PhoneScreen::Use& use)> with_picture;
    std::filesystem::path screenshots;
  };

  ConsolePhone(RecordedHands& hands, Parts parts) : hands_(hands), parts_(std::move(parts)) {}

  void advance(double seconds) override { parts_.advance(seconds); }
  void touch(int finger, console::TouchPhase phase, CGPoint point) override;
  std::optional<CGPoint> centre_of(objc::Object object) override;
  console::Refusal wheel(CGPoint point, CGPoint by, console::WheelKind kind) override {
    return hands_.wheel(point, by, kind);
  }
  console::Refusal type(std::string_view text) override { return hands_.type(text); }
  console::Refusal key(std::string_view name) override {
    const bool types = name == "space" && Hands::caret();
    return types ? hands_.type(" ") : hands_.key(name);
  }
  console::Refusal right_click(CGPoint point) override { return hands_.right_click(point); }
  console::Refusal press(console::Button button) override { return hands_.press(button); }
  console::Refusal button(console::Button button, console::ButtonPhase phase) override {
    return hands_.button(button, phase);
  }
  console::Refusal system(console::SystemEvent event, std::string_view detail) override;
  console::Refusal gesture(std::string_view event) override;
  console::Refusal screenshot(const std::string& file) override;
  console::Refusal compare(const std::string& file) override;
  console::Refusal record(const std::string& file) override;
  console::Refusal end_recording() override { return hands_.end_recording(); }
  void carried_out(std::string_view line) override { hands_.note(line); }
  console::Refusal unrest() override;
  console::Refusal talk_to(std::string_view process) override;
  std::optional<std::string> answer_elsewhere(const std::string& line) override;

 private:
  /// Makes the folder for what the console writes. Returns the reason on failure.
  console::Refusal make_folder() const;

  RecordedHands& hands_;
  Parts parts_;
  /// The process that the console talks to; empty for this one.
  std::string elsewhere_;
};

}  // namespace host::launcher
