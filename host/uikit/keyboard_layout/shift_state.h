#pragma once

#include <optional>

namespace host::uikit {

/// What the shift key has been told: the next letter as a capital, or all of them.
class ShiftState {
 public:
  enum class Value { Off, Once, Locked };

  Value value() const { return value_; }
  bool makes_capitals() const { return value_ != Value::Off; }

  /// Pressed at `time` (seconds): twice quickly locks.
  void press(double time);
  /// The finger has left the key; capitals typed meanwhile were all that it was held for.
  void release();
  /// A letter has been typed.
  void typed();
  /// What the text asks for when nobody presses: a capital at the start of a sentence.
  void suggest(bool capital);
  void reset() { *this = ShiftState(); }

 private:
  Value value_ = Value::Off;
  std::optional<double> last_press_;
  bool is_held_ = false;
  bool typed_while_held_ = false;
};

}  // namespace host::uikit
