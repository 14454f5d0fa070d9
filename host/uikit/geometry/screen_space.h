#pragma once

#include <optional>

#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Convert between a view's coordinates and the screen's, in the model tree (what is set, not what
/// an animation shows). The root view, usually a window, is placed on the screen by its frame.
CGPoint to_screen(UIView view, CGPoint point);
CGPoint from_screen(UIView view, CGPoint point);

/// Returns the centre of a view on the screen; nothing when `object` is not a view or has no
/// window.
std::optional<CGPoint> centre_on_screen(objc::Object object);

/// Convert a distance or a velocity between the screen's and the view's coordinates.
CGPoint vector_from_screen(UIView view, CGPoint vector);
CGPoint vector_to_screen(UIView view, CGPoint vector);

/// Returns the smallest upright rectangle that encloses the converted corners.
CGRect convert_rect(UIView from, CGRect rect, UIView to);

}  // namespace host::uikit
