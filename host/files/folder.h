#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "host/basics/descriptor.h"

namespace host::files {

/// The last error of a C function.
inline std::error_code last_error() {
  return {errno, std::generic_category()};
}

/// The part of `path` before its last slash; "." when it has none.
std::string folder_of(std::string_view path);
/// The part after its last slash.
std::string name_of(std::string_view path);

/// Opens a folder as a place for files. Holds nothing on failure, with the reason in `error`.
Descriptor open_folder(const std::string& path, std::error_code& error);

/// Returns when all names in the folder are on the disk. Folders of some file systems cannot be
/// flushed, and there is nothing that a caller could do about it.
void flush_folder(int folder);

/// Makes the folder and those above it where they are missing; they are on the disk then.
std::error_code make_folders(const std::string& path);

/// Gives a folder with many new files its name. They are on the disk before it has it, and it is
/// when this returns. Fails when the name is taken by a folder that is not empty.
std::error_code move_folder(const std::string& from, const std::string& to);

/// The paths of everything in the folder, sorted. On an error, those read so far.
std::vector<std::filesystem::path> paths_in(const std::filesystem::path& folder,
                                            std::error_code& error);

}  // namespace host::files
