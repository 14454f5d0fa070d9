#pragma once

#include <string>
#include <string_view>

namespace host::foundation {

enum class Admission { kAdmitted, kNotForThisProcess, kNoFilter };

/// Returns whether the filter property list at `path` (on the device) admits a process with this
/// bundle identifier and executable name.
Admission admission(const std::string& path, std::string_view bundle_identifier,
                    std::string_view executable);

}  // namespace host::foundation
