#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// Every symbol that the library needs is in the linker stubs, and every one there is needed.
/// `source` is the project's folder.
void check_symbols(const Image& library, const Image& bundle, const std::filesystem::path& source,
                   Findings& findings);

}  // namespace sonavue::device
