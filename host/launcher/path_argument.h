#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host::launcher {

/// A path for the command line of the phone's processes, where Foundation reads every argument as
/// UTF-8, and for a line that people read. A name may hold any bytes: other bytes than ASCII are
/// written as `%XX`, and so are control characters and the percent sign.
std::string path_argument(const std::filesystem::path& path);
std::filesystem::path path_from_argument(std::string_view argument);

}  // namespace host::launcher
