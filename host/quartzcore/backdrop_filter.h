#pragma once

#include "host/quartzcore/backdrop_layer.h"
#include "host/quartzcore/surface.h"

namespace host::quartzcore {

struct FilteredBackdrop {
  Surface surface;
  /// Mean luminance of the blurred picture before its tints.
  double luminance = 0;
};

/// Blurs and tints `behind`, which is opaque; `scale` is the screen's pixels to the point. The
/// result has the size of `behind`.
FilteredBackdrop filter_backdrop(const Surface& behind, const BackdropLook& look, double scale);

}  // namespace host::quartzcore
