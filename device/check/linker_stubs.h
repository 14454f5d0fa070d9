#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// Checks that the linker stubs contain exactly the symbols that the library and the bundle need.
/// `source` is the project's folder.
void check_symbols(const Image& library, const Image& bundle, const std::filesystem::path& source,
                   Findings& findings);

}  // namespace sonavue::device
