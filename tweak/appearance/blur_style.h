#pragma once

#include "platform/UIKit/_UIBackdropViewSettings.h"

namespace sonavue {

struct BlurStyle {
  _UIBackdropViewStyle number;
  _UIBackdropViewSettings settings;
};

/// The blur that the panel starts with, before the chosen one is applied.
_UIBackdropViewSettings initial_blur();

/// The blur that the setting "blur" names; adaptive light for an unknown name.
BlurStyle chosen_blur();

}  // namespace sonavue
