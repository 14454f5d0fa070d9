#pragma once

#include "platform/UIKit/_UIBackdropViewSettings.h"

namespace sonavue {

struct BlurStyle {
  _UIBackdropViewStyle number;
  _UIBackdropViewSettings settings;
};

/// The blur that the setting "blur" names; a name that is none is the adaptive light one.
BlurStyle chosen_blur();

}  // namespace sonavue
