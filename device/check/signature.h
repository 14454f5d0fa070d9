#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// Checks a library's signature for `identifier`: its directories, their order, and the hash of
/// each page. The parsing is independent of the code that signs.
void check_signature(const std::string& path, const Image& image, const std::string& identifier,
                     Findings& findings);

}  // namespace sonavue::device
