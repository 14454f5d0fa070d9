#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIViewEnumerations.h"

namespace host::uikit {

/// How a layer places its contents for a view's content mode. Views count y downwards where layers
/// speak of the bottom, so top and bottom change places.
NSString contents_gravity(UIViewContentMode mode);

}  // namespace host::uikit
