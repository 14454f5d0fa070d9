#pragma once

#include <optional>

namespace host::uikit {

/// The state of shift: off, on for the next letter, or locked.
class ShiftState {
 public:
  enum class Value { Off, Once, Locked };

  Value value() const { return value_; }
  bool makes_capitals() const { return value_ != Value::Off; }

  /// The key was pressed at `time`, in seconds; two quick presses lock.
  void press(double time);
  /// The finger has left the key. When it was held to type capitals, shift ends with it.
  void release();
  /// A letter has been typed.
  void typed();
  /// Sets what the text calls for, such as a capital at the start of a sentence. Ignored while
  /// shift is held or locked.
  void suggest(bool capital);
  void reset() { *this = ShiftState(); }

 private:
  Value value_ = Value::Off;
  std::optional<double> last_press_;
  bool is_held_ = false;
  bool typed_while_held_ = false;
};

}  // namespace host::uikit
