#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host::launcher {

/// Files that a user names on the command line, on their way to a home screen that may not run yet
/// or runs on another launcher's behalf. They wait in a list in the folder of its control socket,
/// which only this user may enter. Returns false when the list cannot be written.
bool hand_over(const std::filesystem::path& folder, const std::vector<std::string>& files);

/// The files of all lists in the folder, in the order of the calls; removes the lists.
std::vector<std::string> take_handed_files(const std::filesystem::path& folder);

}  // namespace host::launcher
