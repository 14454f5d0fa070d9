#pragma once

#include "platform/UIKit/_UIBackdropViewSettings.h"

namespace sonavue {

struct BlurStyle {
  _UIBackdropViewStyle number;
  _UIBackdropViewSettings settings;
};

/// The blur that the panel is built with, until the chosen one is applied.
_UIBackdropViewSettings initial_blur();

/// The blur that the setting "blur" names; any other name is the adaptive light one.
BlurStyle chosen_blur();

}  // namespace sonavue
