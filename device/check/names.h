#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// Every symbol that the library needs is in the linker stubs, and every one there is needed.
/// `source` is the project's folder.
void check_symbols(const Image& library, const Image& bundle, const std::filesystem::path& source,
                   Findings& findings);

/// Every selector and class that the library names is one of the bindings' or of the extension's
/// own.
void check_names(const Image& library, const std::filesystem::path& source, Findings& findings);

}  // namespace sonavue::device
