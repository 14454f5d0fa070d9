#pragma once

#include "objc/abi.h"

// The phone's runtime sends a message with a function that looks up the method and jumps to it,
// with all argument registers unchanged. These two functions do so with the desktop's runtime. They
// have no C type: cast them to the type of the method.
//
// The phone's own processor has a register for the address of a result in memory, so one function
// sends all messages. On this processor such an address precedes the receiver. It is detected by
// the position of the selector, which is why selectors have to come from `phone_selector`.
extern "C" {
void phone_message();
void phone_super_message();
}

namespace macho_tests {

objc::Sel phone_selector(const char* name);

}  // namespace macho_tests
