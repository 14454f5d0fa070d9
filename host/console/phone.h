#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/screen/input.h"
#include "objc/object.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::console {

using screen::Button;
using screen::ButtonPhase;
using screen::TouchPhase;
using screen::WheelKind;

enum class SystemEvent {
  Banner,
  NotificationCentre,
  ControlCentre,
  Reachability,
  Lock,
  Unlock,
  EditOn,
  EditOff,
  Open,
  FolderIn,
  FolderOut,
  DockIn,
  DockOut,
  Uninstall,
  Kill,
};

/// Why the phone refused a request; empty on success.
using Refusal = std::optional<std::string>;

/// The phone as the console's commands see it. A refused request changes nothing.
class Phone {
 public:
  virtual ~Phone() = default;

  /// Advances the phone's clock by `seconds` and runs everything that becomes due.
  virtual void advance(double seconds) = 0;
  /// Moves one of the fingers; `point` is in points from the screen's top left.
  virtual void touch(int finger, TouchPhase phase, CGPoint point) = 0;
  virtual Refusal wheel(CGPoint point, CGPoint by, WheelKind kind) = 0;
  /// The centre of a view, in points of the screen; empty when `object` is not a view or is not in
  /// a window.
  virtual std::optional<CGPoint> centre_of(objc::Object object) = 0;

  virtual Refusal right_click(CGPoint point) = 0;

  /// The physical keyboard: return, delete, escape, tab, space, left, right, up, down, home, end.
  virtual Refusal type(std::string_view text) = 0;
  virtual Refusal key(std::string_view name) = 0;
  virtual Refusal press(Button button) = 0;
  /// Presses or releases a button, which stays down in between.
  virtual Refusal button(Button button, ButtonPhase phase) = 0;
  /// `detail` is the banner's text or the application's bundle identifier.
  virtual Refusal system(SystemEvent event, std::string_view detail) = 0;
  virtual Refusal gesture(std::string_view event) = 0;
  virtual Refusal screenshot(const std::string& file) = 0;
  /// Compares the screen with the picture in a PNG file; refuses when they differ.
  virtual Refusal compare(const std::string& file) = 0;
  /// Writes what is done to the phone from now on to a new file, as a script.
  virtual Refusal record(const std::string& file) = 0;
  virtual Refusal end_recording() = 0;
  /// Called after a line that does something to the phone which no hand can do.
  virtual void carried_out(std::string_view) {}
  /// Reports what keeps the phone from resting on its home screen, with nothing open and nothing
  /// under way; empty when it rests.
  virtual Refusal unrest() = 0;
  /// Switches the console to another process of the phone.
  virtual Refusal talk_to(std::string_view process) = 0;
  /// Returns the other process's answer to a line; empty while the console is in the phone's own
  /// process.
  virtual std::optional<std::string> answer_elsewhere(const std::string&) { return std::nullopt; }
};

}  // namespace host::console
