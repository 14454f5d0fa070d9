#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// An exception that the system raises below the code of `image` finds its way to a handler above
/// it: for each function the unwind tables say where its caller is.
void check_unwinding(const std::string& path, const Image& image, Findings& findings);

}  // namespace sonavue::device
