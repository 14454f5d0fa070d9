#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// The signature of a library under `identifier`: its directories, in their order, and each page's
/// hash. Reads the file by itself and shares nothing with what signs.
void check_signature(const std::string& path, const Image& image, const std::string& identifier,
                     Findings& findings);

}  // namespace sonavue::device
