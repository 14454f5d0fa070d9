#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

// A category on UIImage: an image reduced to one colour, in two ways.

namespace sonavue {

/// The arithmetic mean of the image's pixels, with the bytes of its storage taken as red, green and
/// blue whatever their order is. An image without pixels gives components that are no numbers.
UIColor averageColor(UIImage image);

/// The colour of the image drawn into one pixel; always opaque. Costs one scaled drawing.
UIColor mergedColor(UIImage image);

/// Adds both to UIImage, under these names.
void make_average_color_addition();

}  // namespace sonavue
