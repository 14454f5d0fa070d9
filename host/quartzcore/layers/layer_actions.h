#pragma once

#include "objc/ref.h"
#include "platform/Foundation/NSString.h"
#include "platform/QuartzCore/CALayer.h"

namespace host::quartzcore {

/// Returns the action for a change that is about to be made; run it after the change.
objc::Ref<objc::Object> action_before_change(CALayer layer, NSString key);
void run_action(const objc::Ref<objc::Object>& action, CALayer layer, NSString key);

}  // namespace host::quartzcore
