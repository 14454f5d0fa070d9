#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIViewEnumerations.h"

namespace host::uikit {

/// The frame that a subview takes when its superview's size changes. Along each axis the change is
/// shared among the flexible lengths (margin, size, margin) in proportion to what they had.
CGRect autoresized_frame(CGRect frame, CGSize old_size, CGSize new_size, UIViewAutoresizing mask);

}  // namespace host::uikit
