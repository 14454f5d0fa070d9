#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// No message is sent the way a variadic function is called: on the phone's processor its arguments
/// would go over the stack, where the method does not look for them.
void check_calls(const Image& library, Findings& findings);

}  // namespace sonavue::device
