#pragma once

#include "device/check/findings.h"
#include "device/check/package_file.h"

namespace sonavue::device {

/// Returns everything that is wrong with a finished package. `source` is the project's folder.
Findings check_package(const PackageFile& package, const std::filesystem::path& source);

}  // namespace sonavue::device
