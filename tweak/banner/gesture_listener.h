#pragma once

#include "objc/own_class.h"
#include "platform/Foundation/NSObject.h"

/// What the gesture service calls when the user's gesture happens.
struct SVActivatorListener : objc::Own<SVActivatorListener, "SVActivatorListener", NSObject> {};

namespace sonavue {

void make_gesture_listener();

/// Gives the service a listener, which it keeps. Without the service nothing happens.
void register_gesture_listener();

}  // namespace sonavue
