#pragma once

#include <string>

#include "device/check/findings.h"

namespace sonavue::device {

/// Refuses fields that the package does not have, and addresses of its page and its icon that are
/// none. `control` is the text of the control file.
void check_control_fields(const std::string& control, Findings& findings);

}  // namespace sonavue::device
