#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// Checks that an exception that the system raises below the code of `image` can reach a handler
/// above it: the unwind tables describe how to find the caller of every function.
void check_unwinding(const std::string& path, const Image& image, Findings& findings);

}  // namespace sonavue::device
