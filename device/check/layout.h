#pragma once

#include "device/check/findings.h"
#include "device/check/package_file.h"

namespace sonavue::device {

inline constexpr const char* kLibraryPath =
    "Library/MobileSubstrate/DynamicLibraries/Sonavue2.dylib";
inline constexpr const char* kBundlePath =
    "Library/PreferenceBundles/SonavueSettings.bundle/SonavueSettings";

/// What the control file and README say of the phones that the library is for.
inline constexpr const char* kProcessors = "arm64, without pointer authentication";

/// Which files there are, whose they are, what the control file says, how all is compressed.
/// `source` is the project's folder: its drawings say which pictures there have to be.
void check_layout(const PackageFile& package, const std::filesystem::path& source,
                  Findings& findings);

}  // namespace sonavue::device
