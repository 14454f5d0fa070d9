#include "host/screen/pointers.h"

namespace host::screen {

CGPoint Pointers::on_screen(CGPoint point) const {
  return {point.x - body_.screen().min_x(), point.y - body_.screen().min_y()};
}

void Pointers::down(int finger, CGPoint point, int clicks) {
  if (down_.contains(finger)) return;
  Pointer& pointer = down_[finger];
  if (body_.screen().contains(point)) {
    pointer.touches = true;
    input_.touch(finger, TouchPhase::Began, on_screen(point));
    return;
  }
  const auto button = body_.button_at(point);
  if (button == Button::Home && clicks == 2) return input_.press(Button::HomeDouble);
  pointer.button = button;
  pointer.outside = point;
  if (button) buttons_.down(*button);
}

void Pointers::moved(int finger, CGPoint point) {
  const auto found = down_.find(finger);
  if (found == down_.end() || found->second.button) return;
  Pointer& pointer = found->second;
  if (!pointer.touches) {
    if (!body_.screen().contains(point)) {
      pointer.outside = point;
      return;
    }
    pointer.touches = true;
    input_.touch(finger, TouchPhase::Began, body_.nearest_on_screen(pointer.outside));
  }
  input_.touch(finger, TouchPhase::Moved, on_screen(point));
}

void Pointers::up(int finger, CGPoint point) {
  const auto found = down_.find(finger);
  if (found == down_.end()) return;
  const Pointer pointer = found->second;
  down_.erase(found);
  if (pointer.button) buttons_.up(*pointer.button);
  if (pointer.touches) input_.touch(finger, TouchPhase::Ended, on_screen(point));
}

void Pointers::right_click(CGPoint point) const {
  if (body_.screen().contains(point)) return input_.right_click(on_screen(point));
  if (body_.button_at(point) == Button::Home) input_.press(Button::HomeTouch);
}

}  // namespace host::screen
