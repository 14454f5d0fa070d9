#pragma once

#include "objc/abi.h"

// The phone's runtime sends a message by a function that finds the method and goes on there, with
// everything in its place that the method is called with. These two do so with the desktop's
// runtime. They have no C type: call them as the method that is meant.
//
// The phone's own processor has a register for the place of a result in memory, so that one
// function sends all messages there. Here such a place comes before the receiver; it is noticed by
// where the selector stands, which is why selectors have to come from `phone_selector`.
extern "C" {
void phone_message();
void phone_super_message();
}

namespace macho_tests {

objc::Sel phone_selector(const char* name);

}  // namespace macho_tests
