#pragma once

#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// Returns the action that a layer runs after one of its properties has changed inside an animation
/// block: it knows the old value and adds the animation that starts there. Returns nil for a
/// property that views do not animate.
objc::Object make_animation_action(UIView view, CALayer layer, NSString key);

void export_animation_action();

}  // namespace host::uikit
