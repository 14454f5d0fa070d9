#pragma once

#include "platform/UIKit/UIView.h"

// A category on UIView: a soft band of near-transparency that sweeps across a view, over and over.

namespace sonavue {

/// Masks the view with a gradient as large as the view is now, on which the band runs; a mask that
/// was there before is gone.
void startShimmering(UIView view);

/// Takes the mask away, and the band with it.
void stopShimmering(UIView view);

/// Adds both to UIView, under these names.
void make_shimmer();

}  // namespace sonavue
