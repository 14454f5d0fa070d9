#pragma once

#include "objc/own_class.h"
#include "platform/Foundation/NSObject.h"

/// The listener that the gesture service calls when the user makes the assigned gesture.
struct SVActivatorListener : objc::Own<SVActivatorListener, "SVActivatorListener", NSObject> {};

namespace sonavue {

void make_gesture_listener();

/// Registers a listener with the gesture service, which retains it. A no-op without the service.
void register_gesture_listener();

}  // namespace sonavue
