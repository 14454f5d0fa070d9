#pragma once

#include "platform/UIKit/UIView.h"

namespace host::uikit {

/// What a layer runs after a property of its has changed inside an animation block: it knows the
/// old value and adds the animation from it. nil for a property that views do not animate.
objc::Object make_animation_action(UIView view, CALayer layer, NSString key);

void export_animation_action();

}  // namespace host::uikit
