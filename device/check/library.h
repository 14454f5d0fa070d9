#pragma once

#include "device/check/findings.h"
#include "device/macho/image.h"

namespace sonavue::device {

/// Checks that the load commands of a library or bundle work on the oldest supported system.
void check_load_commands(const std::string& path, const Image& image, Findings& findings);

/// Checks the library's install name and its initialisers: first the settings', then the
/// extension's.
void check_library(const Image& library, Findings& findings);

/// Checks the settings bundle, which contains no code and only loads the library.
void check_bundle(const Image& bundle, Findings& findings);

}  // namespace sonavue::device
