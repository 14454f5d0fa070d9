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

/// Why the phone could not do what it was asked to; nothing when it did.
using Refusal = std::optional<std::string>;

/// The phone as the console's commands see it. Whatever is refused changes nothing.
class Phone {
 public:
  virtual ~Phone() = default;

  /// Lets the phone's clock run for `seconds`, and everything that is due meanwhile.
  virtual void advance(double seconds) = 0;
  /// One of the fingers on the screen; `point` is in points from the top left.
  virtual void touch(int finger, TouchPhase phase, CGPoint point) = 0;
  /// The middle of a view that is on the screen, in points of the screen; nothing when `object` is
  /// no view or stands in no window.
  virtual std::optional<CGPoint> centre_of(objc::Object object) = 0;

  /// The physical keyboard: return, delete, escape, tab, space, left, right, up, down, home, end.
  virtual Refusal type(std::string_view text) = 0;
  virtual Refusal key(std::string_view name) = 0;
  virtual Refusal press(Button button) = 0;
  /// A button that stays down until it is let go.
  virtual Refusal button(Button button, ButtonPhase phase) = 0;
  /// `detail` is the banner's text or the application's bundle identifier.
  virtual Refusal system(SystemEvent event, std::string_view detail) = 0;
  virtual Refusal gesture(std::string_view event) = 0;
  virtual Refusal screenshot(const std::string& file) = 0;
  /// What keeps the phone from resting on its home screen, with nothing open and nothing under way;
  /// nothing when it rests.
  virtual Refusal unrest() = 0;
  /// Turns the console to another process of the phone.
  virtual Refusal talk_to(std::string_view process) = 0;
  /// What the process that the console has turned to answers to a line; nothing while that is the
  /// phone's own.
  virtual std::optional<std::string> answer_elsewhere(const std::string&) { return std::nullopt; }
};

}  // namespace host::console
