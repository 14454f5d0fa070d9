#pragma once

#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// A picture of the home screen's own by its name without suffix, at this screen's scale; nil when
/// it is missing.
UIImage picture(NSString name);
/// The same, in the tablet's size where there is one.
UIImage picture_for_idiom(NSString name);

}  // namespace host::springboard
