#pragma once

#include <optional>
#include <span>

#include "host/screen/input.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

/// The phone around its screen, in points from the body's top left: where the buttons are and what
/// a finger there presses. Tall phones have their lock at the side and a Home button with a ring,
/// all others the lock at the top and a square on the Home button.
class PhoneBody {
 public:
  /// `screen` is in points.
  explicit PhoneBody(CGSize screen);

  /// Of everything, buttons at the sides included.
  CGSize size() const { return size_; }
  CGRect case_frame() const { return case_; }
  CGRect screen() const { return screen_; }
  static std::span<const Button> buttons();
  CGRect frame_of(Button button) const;
  /// Around the buttons at the sides, which are thin, there is room for a finger.
  std::optional<Button> button_at(CGPoint point) const;
  /// The place on the screen that is nearest, in points of the screen.
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
