#pragma once

#include <optional>
#include <span>

#include "host/screen/input.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

/// The phone around its screen, in points from the body's top left: the positions of the buttons,
/// and which one a finger presses. Tall phones have the lock button at the side and a ring on the
/// Home button; all others have the lock button at the top and a square on the Home button.
class PhoneBody {
 public:
  /// `screen` is in points.
  explicit PhoneBody(CGSize screen);

  /// The total size, including the side buttons.
  CGSize size() const { return size_; }
  CGRect case_frame() const { return case_; }
  CGRect screen() const { return screen_; }
  static std::span<const Button> buttons();
  CGRect frame_of(Button button) const;
  /// Returns the button at the point. The thin side buttons have a margin for a finger.
  std::optional<Button> button_at(CGPoint point) const;
  /// Returns the nearest point on the screen, in screen coordinates.
  CGPoint nearest_on_screen(CGPoint point) const;
  bool is_tall() const { return tall_; }

 private:
  CGRect finger_room(Button button) const;
  CGRect lock_frame() const;

  CGSize size_;
  CGRect case_;
  CGRect screen_;
  bool tall_;
};

}  // namespace host::screen
