#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIViewEnumerations.h"

namespace host::uikit {

/// Returns the frame of a subview after its superview's size has changed. Along each axis the
/// flexible lengths (margin, size, margin) share the change in proportion to their old values.
CGRect autoresized_frame(CGRect frame, CGSize old_size, CGSize new_size, UIViewAutoresizing mask);

}  // namespace host::uikit
