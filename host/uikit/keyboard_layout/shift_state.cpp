#include "host/uikit/keyboard_layout/shift_state.h"

#include "host/uikit/touch/tap_limits.h"

namespace host::uikit {

void ShiftState::press(double time) {
  const bool again = last_press_ && time - *last_press_ <= kLongestTapInterval;
  if (again && value_ != Value::Locked) {
    value_ = Value::Locked;
  } else {
    value_ = value_ == Value::Off ? Value::Once : Value::Off;
  }
  // A third press starts a new pair.
  last_press_ = again ? std::nullopt : std::optional(time);
  is_held_ = true;
  typed_while_held_ = false;
}

void ShiftState::release() {
  is_held_ = false;
  if (typed_while_held_ && value_ == Value::Once) value_ = Value::Off;
}

void ShiftState::typed() {
  last_press_.reset();
  typed_while_held_ = is_held_;
  if (value_ == Value::Once && !is_held_) value_ = Value::Off;
}

void ShiftState::suggest(bool capital) {
  if (value_ == Value::Locked || is_held_) return;
  value_ = capital ? Value::Once : Value::Off;
}

}  // namespace host::uikit
