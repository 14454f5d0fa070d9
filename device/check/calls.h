#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// Checks that no message is sent as a variadic call: on the phone's processor its arguments would
/// be on the stack, where the method does not look for them.
void check_calls(const Image& library, Findings& findings);

}  // namespace sonavue::device
