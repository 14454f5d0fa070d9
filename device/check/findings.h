#pragma once

#include <string>
#include <vector>

namespace sonavue::device {

/// The violations of a package, one line each.
using Findings = std::vector<std::string>;

}  // namespace sonavue::device
