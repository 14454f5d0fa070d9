#pragma once

#include "platform/Foundation/NSObject.h"

/// What the gesture service calls when the user's gesture happens.
struct SVActivatorListener : objc::Bound<SVActivatorListener, "SVActivatorListener", NSObject> {};

namespace sonavue {

void make_gesture_listener();

}  // namespace sonavue
