#include "host/launcher/home_screen/hands.h"

#include "host/springboard/system_actions.h"
#include "host/uikit/text/key_input.h"
#include "platform/SpringBoard/SBMediaController.h"

namespace host::launcher {
namespace {

// Sixteen presses from silence to the loudest.
constexpr float kVolumeStep = 1.0f / 16;

}  // namespace

void Hands::touch(int finger, screen::TouchPhase phase, CGPoint point) {
  const double now = loop_.now();
  switch (phase) {
    case screen::TouchPhase::Began:
      return touches_.began(finger, point, now);
    case screen::TouchPhase::Moved:
      return touches_.moved(finger, point, now);
    case screen::TouchPhase::Ended:
      return touches_.ended(finger, point, now);
    case screen::TouchPhase::Cancelled:
      return touches_.cancelled(finger, point, now);
  }
}

Hands::Refusal Hands::type(std::string_view text) {
  const auto typed = NSString::stringWithUTF8String(std::string(text).c_str());
  if (!typed) return "the text is not UTF-8";
  if (!uikit::type_text(typed)) return "nobody takes text now";
  return std::nullopt;
}

Hands::Refusal Hands::key(std::string_view name) {
  if (name == "space") return type(" ");
  const bool taken = uikit::press_key(name == "delete" ? "backspace" : name);
  if (!taken) return "nobody takes this key now";
  return std::nullopt;
}

Hands::Refusal Hands::press(screen::Button button) {
  switch (button) {
    case screen::Button::Home:
      springboard::press_home();
      return std::nullopt;
    case screen::Button::HomeDouble:
      springboard::double_press_home();
      return std::nullopt;
    case screen::Button::Lock:
      springboard::lock();
      return std::nullopt;
    case screen::Button::VolumeUp:
      SBMediaController::sharedInstance()._changeVolumeBy(kVolumeStep);
      return std::nullopt;
    case screen::Button::VolumeDown:
      SBMediaController::sharedInstance()._changeVolumeBy(-kVolumeStep);
      return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace host::launcher
