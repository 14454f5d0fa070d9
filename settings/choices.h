#pragma once

#include "platform/Foundation/NSArray.h"

// The choices of the settings that are no switches, in the order in which they are offered. Each is
// at once what is stored and the name of its text.

namespace sonavue {

NSArray blur_choices();
NSArray color_choices();
/// What the ring around the play button shows.
NSArray ring_choices();

/// The texts of the choices, in their order.
NSArray translated(NSArray choices);

}  // namespace sonavue
