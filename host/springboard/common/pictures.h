#pragma once

#include "platform/UIKit/UIImage.h"

namespace host::springboard {

/// Returns one of the home screen's own pictures at this screen's scale; nil when it is missing.
/// `name` has no suffix.
UIImage picture(NSString name);
/// The same, in the tablet's size on a tablet, when there is such a picture.
UIImage picture_for_idiom(NSString name);

}  // namespace host::springboard
