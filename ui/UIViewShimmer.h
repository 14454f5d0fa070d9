#pragma once

#include "platform/UIKit/UIView.h"

// A category on UIView: a soft, nearly transparent band that sweeps across the view repeatedly.

namespace sonavue {

/// Masks the view with a gradient of the view's current size and starts the band on it. Replaces
/// any previous mask.
void startShimmering(UIView view);

/// Removes the mask and with it the band.
void stopShimmering(UIView view);

/// Adds both methods to UIView under these names.
void make_shimmer();

}  // namespace sonavue
