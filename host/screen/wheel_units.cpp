#include "host/screen/wheel_units.h"

#include <SDL.h>

namespace host::screen {
namespace {

// A touchpad reports a tenth of the distance that its fingers have moved on the desktop.
constexpr double kDesktopUnits = 10;
constexpr std::uint32_t kSameMovement = 1000;  // milliseconds

}  // namespace

bool WheelUnits::is_precise(const SDL_MouseWheelEvent& event) {
  const bool has_fraction = event.preciseX != static_cast<float>(event.x) ||
                            event.preciseY != static_cast<float>(event.y);
  if (has_fraction) last_fraction_ = event.timestamp;
  return last_fraction_ && event.timestamp - *last_fraction_ < kSameMovement;
}

// A wheel has one axis; with shift it turns along the other.
WheelUnits::Turn WheelUnits::of(const SDL_MouseWheelEvent& event, double window_units_per_point) {
  if (is_precise(event)) {
    const double unit = kDesktopUnits / window_units_per_point;
    return {{event.preciseX * unit, 0.0 - event.preciseY * unit}, WheelKind::Precise};
  }
  const CGPoint notches{static_cast<double>(event.x), static_cast<double>(-event.y)};
  const bool sideways = (SDL_GetModState() & KMOD_SHIFT) != 0 && notches.x == 0;
  return {sideways ? CGPoint{notches.y, 0} : notches, WheelKind::Notched};
}

}  // namespace host::screen
