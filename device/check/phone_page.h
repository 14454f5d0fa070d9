#pragma once

#include <filesystem>

#include "device/check/findings.h"
#include "device/check/system_range.h"

namespace sonavue::device {

/// Checks that the table of docs/phone.md names the phones and systems that the control file
/// promises. `source` is the project's folder.
void check_phone_page(const std::filesystem::path& source, const SystemRange& range,
                      Findings& findings);

}  // namespace sonavue::device
