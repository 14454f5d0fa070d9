#pragma once

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/quartzcore/pixels/small_picture.h"

namespace host::quartzcore {

/// Returns how much a picture can be reduced before this blur without a visible difference. `scale`
/// is in pixels per point.
int reduction_for(const BackdropLook& look, double scale);

/// Blurs and tints a picture that was reduced by `reduction_for`. Returns the mean luminance of the
/// blurred picture before tinting.
double filter_backdrop(SmallPicture& picture, const BackdropLook& look, double scale);

}  // namespace host::quartzcore
