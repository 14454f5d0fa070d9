#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UIViewEnumerations.h"

namespace host::uikit {

/// Returns how a layer places its contents for a view's content mode. Views count y downwards,
/// while a layer's gravity counts it upwards: top and bottom are swapped.
NSString contents_gravity(UIViewContentMode mode);

}  // namespace host::uikit
