#pragma once

#include <cstdint>
#include <optional>

#include "host/screen/input.h"

struct SDL_MouseWheelEvent;

namespace host::screen {

/// Converts the turns that the desktop reports. Fractions of a notch come only from a device that
/// has none, whose next reports may happen to be whole.
class WheelUnits {
 public:
  struct Turn {
    CGPoint by;
    WheelKind kind;
  };
  /// `window_units_per_point` is the size at which the phone is shown.
  Turn of(const SDL_MouseWheelEvent& event, double window_units_per_point);

 private:
  bool is_precise(const SDL_MouseWheelEvent& event);

  /// When a fraction was last reported, in milliseconds.
  std::optional<std::uint32_t> last_fraction_;
};

}  // namespace host::screen
