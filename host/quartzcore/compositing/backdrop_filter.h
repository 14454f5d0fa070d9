#pragma once

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/pixels/small_picture.h"

namespace host::quartzcore {

/// How much smaller a picture may be blurred with this look so that nobody can tell; `scale` is the
/// screen's pixels to the point.
int reduction_for(const BackdropLook& look, double scale);

/// Blurs and tints a picture that was reduced by `reduction_for` and gives the mean luminance of
/// the blurred picture before its tints.
double filter_backdrop(SmallPicture& picture, const BackdropLook& look, double scale);

}  // namespace host::quartzcore
