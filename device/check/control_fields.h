#pragma once

#include <string>

#include "device/check/findings.h"

namespace sonavue::device {

/// Rejects unexpected fields, and invalid addresses of the package's page and icon. `control` is
/// the text of the control file.
void check_control_fields(const std::string& control, Findings& findings);

}  // namespace sonavue::device
