#pragma once

#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIImage.h"

namespace sonavue {

/// A picture of the extension by its name, to which "@2x.png" is added unless it ends so; nil when
/// there is no such file.
UIImage imageFromFile(NSString name);

/// The colour of everything that is switched on.
UIColor pattern_color();

}  // namespace sonavue
