#pragma once

#include "platform/Foundation/NSArray.h"

// The choices of the settings that are not switches, in the order in which they are offered. Each
// string is both the stored value and the name of the choice's text.

namespace sonavue {

NSArray blur_choices();
NSArray color_choices();
/// Choices for what the ring around the play button shows.
NSArray ring_choices();

/// The texts of the choices, in the same order.
NSArray translated(NSArray choices);

}  // namespace sonavue
