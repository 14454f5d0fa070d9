#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// What every library and bundle of the package has to be for the oldest system: its load commands.
void check_load_commands(const std::string& path, const Image& image, Findings& findings);

/// The library's own name and its initialisers: the settings' classes first, then the extension's.
void check_library(const Image& library, Findings& findings);

/// The settings bundle is code of none: it brings the library in.
void check_bundle(const Image& bundle, Findings& findings);

}  // namespace sonavue::device
