#include "host/screen/phone_body.h"

#include <algorithm>
#include <cmath>

namespace host::screen {
namespace {

constexpr CGFloat kSide = 18;
constexpr CGFloat kForehead = 66;
constexpr CGFloat kChin = 88;
// How far the side buttons protrude, in points.
constexpr CGFloat kStandsOut = 4;
// The width of the background that is visible around the phone, in points.
constexpr CGFloat kAround = 10;
constexpr CGFloat kHomeSide = 60;
constexpr CGFloat kVolumeLength = 40;
constexpr CGFloat kVolumeGap = 12;
// A share of the screen's height, from its top.
constexpr CGFloat kVolumePlace = 0.13;
constexpr CGFloat kLockLength = 44;
constexpr CGFloat kLockAtTop = 0.74;
constexpr CGFloat kFingerRoom = 14;
constexpr CGFloat kTallPhone = 667;
constexpr CGFloat kWidestPhone = 500;

constexpr Button kButtons[] = {Button::Home, Button::Lock, Button::VolumeUp, Button::VolumeDown};

}  // namespace

PhoneBody::PhoneBody(CGSize screen)
    : tall_(screen.height >= kTallPhone && screen.width <= kWidestPhone) {
  const CGFloat outside = kAround + kStandsOut;
  case_ = {outside, outside, screen.width + 2 * kSide, screen.height + kForehead + kChin};
  screen_ = {outside + kSide, outside + kForehead, screen.width, screen.height};
  size_ = {case_.size.width + 2 * outside, case_.size.height + 2 * outside};
}

std::span<const Button> PhoneBody::buttons() {
  return kButtons;
}

CGRect PhoneBody::lock_frame() const {
  // Half of each side button is inside the body.
  if (!tall_) {
    const CGFloat x = case_.min_x() + case_.size.width * kLockAtTop;
    return {x, case_.min_y() - kStandsOut, kLockLength, 2 * kStandsOut};
  }
  const CGFloat y = screen_.min_y() + screen_.size.height * kVolumePlace;
  return {case_.max_x() - kStandsOut, y, 2 * kStandsOut, kLockLength};
}

CGRect PhoneBody::frame_of(Button button) const {
  const CGFloat volume_y = screen_.min_y() + screen_.size.height * kVolumePlace;
  const CGFloat volume_x = case_.min_x() - kStandsOut;
  switch (button) {
    case Button::Lock:
      return lock_frame();
    case Button::VolumeUp:
      return {volume_x, volume_y, 2 * kStandsOut, kVolumeLength};
    case Button::VolumeDown:
      return {volume_x, volume_y + kVolumeLength + kVolumeGap, 2 * kStandsOut, kVolumeLength};
    case Button::Home:
    case Button::HomeDouble:
    case Button::HomeTouch:
      break;
  }
  const CGFloat middle = (screen_.max_y() + case_.max_y()) / 2;
  return {case_.centre().x - kHomeSide / 2, middle - kHomeSide / 2, kHomeSide, kHomeSide};
}

CGRect PhoneBody::finger_room(Button button) const {
  const CGRect frame = frame_of(button);
  const bool stands_upright = frame.size.height > frame.size.width;
  const CGFloat x = stands_upright ? kFingerRoom : kVolumeGap / 2;
  const CGFloat y = stands_upright ? kVolumeGap / 2 : kFingerRoom;
  return {frame.min_x() - x, frame.min_y() - y, frame.size.width + 2 * x,
          frame.size.height + 2 * y};
}

std::optional<Button> PhoneBody::button_at(CGPoint point) const {
  if (screen_.contains(point)) return std::nullopt;
  const CGRect home = frame_of(Button::Home);
  const CGPoint centre = home.centre();
  if (std::hypot(point.x - centre.x, point.y - centre.y) <= kHomeSide / 2) return Button::Home;
  for (const Button button : buttons()) {
    if (button != Button::Home && finger_room(button).contains(point)) return button;
  }
  return std::nullopt;
}

CGPoint PhoneBody::nearest_on_screen(CGPoint point) const {
  // The last point still belongs to the screen; points beyond it do not.
  return {std::clamp<CGFloat>(point.x - screen_.min_x(), 0, screen_.size.width - 1),
          std::clamp<CGFloat>(point.y - screen_.min_y(), 0, screen_.size.height - 1)};
}

}  // namespace host::screen
