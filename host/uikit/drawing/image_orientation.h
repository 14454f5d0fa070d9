#pragma once

#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/UIKit/UIImage.h"

// How a picture that was taken sideways or mirrored is turned upright when drawn.
namespace host::uikit {

/// Returns whether the orientation swaps width and height.
bool is_sideways(UIImageOrientation orientation);

/// Returns the transform under which pixels drawn into `unturned(rect, orientation)` appear upright
/// in `rect`.
CGAffineTransform turned_into(CGRect rect, UIImageOrientation orientation);
CGRect unturned(CGRect rect, UIImageOrientation orientation);

}  // namespace host::uikit
