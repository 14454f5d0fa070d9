#pragma once

#include <optional>

#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Points of a view and of the screen, by the model tree (what is set, not what an animation
/// shows). The view at the root, a window as a rule, stands in the screen with its frame.
CGPoint to_screen(UIView view, CGPoint point);
CGPoint from_screen(UIView view, CGPoint point);

/// The middle of a view that is on the screen; nothing when `object` is no view or stands in no
/// window.
std::optional<CGPoint> centre_on_screen(objc::Object object);

/// A distance of the screen, or a speed, as the view measures it.
CGPoint vector_from_screen(UIView view, CGPoint vector);
CGPoint vector_to_screen(UIView view, CGPoint vector);

/// The smallest upright rectangle round the converted corners.
CGRect convert_rect(UIView from, CGRect rect, UIView to);

}  // namespace host::uikit
