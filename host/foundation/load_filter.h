#pragma once

#include <string>
#include <string_view>

namespace host::foundation {

enum class Admission { kAdmitted, kNotForThisProcess, kNoFilter };

/// Does the filter property list at `path` (of the device) admit a process of this bundle
/// identifier and executable name?
Admission admission(const std::string& path, std::string_view bundle_identifier,
                    std::string_view executable);

}  // namespace host::foundation
