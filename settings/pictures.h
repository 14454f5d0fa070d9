#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

namespace sonavue {

/// The extension's picture with that name. Appends "@2x.png" unless the name ends with it. Returns
/// nil if there is no such file.
UIImage imageFromFile(NSString name);

/// The colour of switches that are on.
UIColor pattern_color();

}  // namespace sonavue
