#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

// A category on UIImage: two ways to reduce an image to one colour.

namespace sonavue {

/// The arithmetic mean of the image's pixels. The stored bytes are taken as red, green and blue,
/// whatever their actual order. For an image without pixels the components are NaN.
UIColor averageColor(UIImage image);

/// The colour of the image when it is drawn into a single pixel; always opaque. Costs one scaled
/// drawing.
UIColor mergedColor(UIImage image);

/// Adds both methods to UIImage under these names.
void make_average_color_addition();

}  // namespace sonavue
