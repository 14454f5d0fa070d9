#pragma once

#include "device/check/findings.h"
#include "device/check/package_file.h"

namespace sonavue::device {

inline constexpr const char* kLibraryPath =
    "Library/MobileSubstrate/DynamicLibraries/Sonavue2.dylib";
inline constexpr const char* kBundlePath =
    "Library/PreferenceBundles/SonavueSettings.bundle/SonavueSettings";

/// The processors that the control file and docs/phone.md name for the library.
inline constexpr const char* kProcessors = "arm64, without pointer authentication";

/// Checks the package's files and their owners, the control file, and the compression. `source` is
/// the project's folder; its drawings determine the expected pictures.
void check_layout(const PackageFile& package, const std::filesystem::path& source,
                  Findings& findings);

}  // namespace sonavue::device
