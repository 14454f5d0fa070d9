#pragma once

#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/UIKit/UIImage.h"

// How a picture that was taken sideways or mirrored is turned upright when it is drawn.
namespace host::uikit {

/// Are width and height exchanged?
bool is_sideways(UIImageOrientation orientation);

/// The transform under which the pixels, drawn into `unturned(rect, orientation)`, stand upright
/// in `rect`.
CGAffineTransform turned_into(CGRect rect, UIImageOrientation orientation);
CGRect unturned(CGRect rect, UIImageOrientation orientation);

}  // namespace host::uikit
