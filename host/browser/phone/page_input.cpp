#include "host/browser/phone/page_input.h"

namespace host::browser {
namespace {

constexpr std::size_t kMostFingers = 11;

screen::Button button_of(PageButton button) {
  switch (button) {
    case PageButton::Home:
      return screen::Button::Home;
    case PageButton::HomeDouble:
      return screen::Button::HomeDouble;
    case PageButton::Lock:
      return screen::Button::Lock;
    case PageButton::VolumeUp:
      return screen::Button::VolumeUp;
    case PageButton::VolumeDown:
      return screen::Button::VolumeDown;
    case PageButton::HomeTouch:
      break;
  }
  return screen::Button::HomeTouch;
}

}  // namespace

PageInput::PageInput(const screen::PhoneBody& body, screen::Input& input)
    : body_(body), input_(input), buttons_(input), pointers_(body, input, buttons_) {}

void PageInput::take(const PointerChange& change) {
  const CGPoint point{change.x, change.y};
  switch (change.phase) {
    case PointerPhase::Down:
      if (fingers_.size() >= kMostFingers) return;
      fingers_[change.finger] = point;
      return pointers_.down(change.finger, point, change.clicks);
    case PointerPhase::Moved:
      if (!fingers_.contains(change.finger)) return;
      fingers_[change.finger] = point;
      return pointers_.moved(change.finger, point);
    case PointerPhase::Up:
      fingers_.erase(change.finger);
      return pointers_.up(change.finger, point);
  }
}

void PageInput::take(const Wheel& wheel) {
  const CGRect screen = body_.screen();
  if (!screen.contains({wheel.x, wheel.y})) return;
  input_.wheel({wheel.x - screen.min_x(), wheel.y - screen.min_y()}, {wheel.across, wheel.down},
               wheel.is_precise ? screen::WheelKind::Precise : screen::WheelKind::Notched);
}

void PageInput::take(const ButtonHeld& held) {
  const screen::Button button = button_of(held.button);
  if (button == screen::Button::HomeDouble || button == screen::Button::HomeTouch) {
    if (held.is_down) input_.press(button);
  } else if (held.is_down && held_.insert(button).second) {
    buttons_.down(button);
  } else if (!held.is_down && held_.erase(button) != 0) {
    buttons_.up(button);
  }
}

void PageInput::let_go() {
  for (const auto& [finger, point] : fingers_)
    pointers_.up(finger, point);
  fingers_.clear();
  for (const screen::Button button : held_)
    buttons_.up(button);
  held_.clear();
}

}  // namespace host::browser
