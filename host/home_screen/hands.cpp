#include "host/home_screen/hands.h"

#include "host/uikit/text/key_input.h"
#include "host/uikit/text_layout/characters.h"

namespace host::launcher {
namespace {

activator::ButtonGestures::Button gesture_button(screen::Button button) {
  using Button = activator::ButtonGestures::Button;
  switch (button) {
    case screen::Button::Lock:
      return Button::Lock;
    case screen::Button::VolumeUp:
      return Button::VolumeUp;
    case screen::Button::VolumeDown:
      return Button::VolumeDown;
    case screen::Button::Home:
    case screen::Button::HomeDouble:
    case screen::Button::HomeTouch:
      break;
  }
  return Button::Home;
}

}  // namespace

void Hands::touch(int finger, screen::TouchPhase phase, CGPoint point) {
  const double now = loop_.now();
  switch (phase) {
    case screen::TouchPhase::Began:
      springboard::end_focus();
      return touches_.began(finger, point, now);
    case screen::TouchPhase::Moved:
      return touches_.moved(finger, point, now);
    case screen::TouchPhase::Ended:
      return touches_.ended(finger, point, now);
    case screen::TouchPhase::Cancelled:
      return touches_.cancelled(finger, point, now);
  }
}

Hands::Refusal Hands::wheel(CGPoint point, CGPoint by, screen::WheelKind kind) {
  springboard::end_focus();
  const bool notched = kind == screen::WheelKind::Notched;
  const bool moves = springboard::turn_wheel_over(
      point, by, notched ? uikit::WheelKind::Notched : uikit::WheelKind::Precise);
  if (!moves) return "nothing there moves that way";
  return std::nullopt;
}

Hands::Refusal Hands::type(std::string_view text) {
  const auto typed = NSString::stringWithUTF8String(std::string(text).c_str());
  if (!typed) return "the text is not UTF-8";
  if (springboard::type_into_application(std::string(text))) return std::nullopt;
  if (!uikit::type_text(typed)) return "nothing is taking text";
  return std::nullopt;
}

Hands::Refusal Hands::compose(std::string_view text, int caret) {
  const auto composed = NSString::stringWithUTF8String(std::string(text).c_str());
  if (!composed) return "the text is not UTF-8";
  if (springboard::compose_in_application(std::string(text), caret)) return std::nullopt;
  if (!uikit::compose_text(composed, uikit::utf16_units(text, caret)))
    return "nothing is taking text";
  return std::nullopt;
}

Hands::Refusal Hands::key(std::string_view name) {
  if (gestures_.press_key(name)) return std::nullopt;
  // With return and escape, and with delete, modifiers have no meaning.
  const std::string_view alone = name.substr(name.rfind('-') + 1);
  if (alone == "delete") name = "backspace";
  if (alone == "return" || alone == "escape") name = alone;
  if (!springboard::press_key(std::string(name))) return "nothing is taking this key";
  return std::nullopt;
}

Hands::Refusal Hands::right_click(CGPoint point) {
  springboard::end_focus();
  if (!springboard::hold_icon_at(point)) return "no icon is there";
  return std::nullopt;
}

Hands::Refusal Hands::press(screen::Button button) {
  if (button == screen::Button::HomeDouble) {
    springboard::double_press_home();
    return std::nullopt;
  }
  if (button == screen::Button::HomeTouch) {
    if (!springboard::double_touch_home()) return "this device has no reachability";
    return std::nullopt;
  }
  push(button);
  let_go(button);
  return std::nullopt;
}

Hands::Refusal Hands::button(screen::Button button, screen::ButtonPhase phase) {
  if (button == screen::Button::HomeDouble) return "two presses cannot be held";
  if (button == screen::Button::HomeTouch) return "two touches cannot be held";
  if (phase == screen::ButtonPhase::Down) {
    push(button);
  } else {
    let_go(button);
  }
  return std::nullopt;
}

// The volume changes at once; buttons that can also be held act on release.
void Hands::push(screen::Button button) {
  gestures_.buttons().down(gesture_button(button));
  if (button == screen::Button::VolumeUp) springboard::press_volume(springboard::VolumeButton::kUp);
  if (button == screen::Button::VolumeDown)
    springboard::press_volume(springboard::VolumeButton::kDown);
}

void Hands::let_go(screen::Button button) {
  using Press = activator::ButtonGestures::Press;
  if (gestures_.buttons().up(gesture_button(button)) != Press::Plain) return;
  if (button == screen::Button::Home) springboard::press_home();
  if (button == screen::Button::Lock) springboard::press_lock();
}

}  // namespace host::launcher
