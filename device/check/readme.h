#pragma once

#include <filesystem>

#include "device/check/findings.h"
#include "device/check/system_range.h"

namespace sonavue::device {

/// Checks that README's table names the phones and systems that the control file promises. `source`
/// is the project's folder.
void check_readme(const std::filesystem::path& source, const SystemRange& range,
                  Findings& findings);

}  // namespace sonavue::device
