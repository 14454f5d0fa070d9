#pragma once

#include <string>
#include <vector>

namespace sonavue::device {

/// What a package does that it should not, one line each.
using Findings = std::vector<std::string>;

}  // namespace sonavue::device
