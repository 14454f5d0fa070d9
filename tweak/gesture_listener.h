#pragma once

#include "objc/own_class.h"
#include "platform/Foundation/NSObject.h"

/// What the gesture service calls when the user's gesture happens.
struct SVActivatorListener : objc::Own<SVActivatorListener, "SVActivatorListener", NSObject> {};

namespace sonavue {

void make_gesture_listener();

}  // namespace sonavue
