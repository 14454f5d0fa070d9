#pragma once

#include <string_view>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

enum class TouchPhase { Began, Moved, Ended, Cancelled };

enum class Button { Home, HomeDouble, Lock, VolumeUp, VolumeDown };

/// Whoever is told what the user does to the phone.
class Input {
 public:
  virtual ~Input() = default;

  /// `point` is in points of the screen from its top left; it may lie outside.
  virtual void touch(int finger, TouchPhase phase, CGPoint point) = 0;
  /// Text of the keyboard, as UTF-8; input methods have composed it.
  virtual void type(std::string_view text) = 0;
  /// A key that types nothing: return, delete, escape, tab, left, right, up, down, home or end.
  virtual void key(std::string_view name) = 0;
  virtual void press(Button button) = 0;
  /// The user has closed the window.
  virtual void close() = 0;
};

}  // namespace host::screen
