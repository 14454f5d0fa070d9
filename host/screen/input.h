#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

enum class TouchPhase { Began, Moved, Ended, Cancelled };

/// `HomeDouble` is two presses of Home, `HomeTouch` two touches that do not press it.
enum class Button { Home, HomeDouble, Lock, VolumeUp, VolumeDown, HomeTouch };

enum class ButtonPhase { Down, Up };

/// A notched wheel turns by notches; a touchpad, or a wheel without notches, by points.
enum class WheelKind { Notched, Precise };

/// Receives the user's actions on the phone.
class Input {
 public:
  virtual ~Input() = default;

  /// `point` is in points of the screen from its top left; it may lie outside.
  virtual void touch(int finger, TouchPhase phase, CGPoint point) = 0;
  /// The wheel turns over a point of the screen; positive values show what is further right or
  /// below.
  virtual void wheel(CGPoint point, CGPoint by, WheelKind kind) = 0;
  /// Text from the keyboard, as UTF-8, after composition by input methods.
  virtual void type(std::string_view text) = 0;
  /// Text that an input method is still composing; replaces what it composed before. Empty when the
  /// composition is cancelled. `caret` counts code points from its start.
  virtual void compose(std::string_view text, int caret) = 0;
  /// A key that types no text: return, delete, escape, tab, left, right, up, down, home or end, or
  /// a letter with the control key. The prefixes are `control-` and `shift-`, in this order. Also
  /// `space`, whose text comes by itself, and `media-play`, `-next`, `-previous` and `-stop`.
  virtual void key(std::string_view name) = 0;
  /// Where typed text goes, in points of the screen; nothing while no field takes text.
  virtual std::optional<CGRect> caret() const = 0;
  /// The other mouse button is pressed on the screen.
  virtual void right_click(CGPoint point) = 0;
  /// A complete press of a button that cannot be held.
  virtual void press(Button button) = 0;
  /// A button goes down or up.
  virtual void button(Button button, ButtonPhase phase) = 0;
  virtual void shake() = 0;
  /// Files and folders that were dropped on the window together, by their paths; also a text that
  /// was dropped, an address for instance.
  virtual void drop(std::vector<std::string> things) = 0;
  /// The user has closed the window.
  virtual void close() = 0;
};

}  // namespace host::screen
