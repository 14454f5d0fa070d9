#pragma once

#include <filesystem>
#include <string>

namespace host::launcher {

/// Why a file cannot be an extension, after its name: " cannot be found", " is not a library" and
/// so on. Empty if it may be one, which only loading it shows.
std::string reason_not_to_load(const std::filesystem::path& file);

}  // namespace host::launcher
