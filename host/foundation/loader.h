#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host::foundation {

/// Where the libraries are on this machine.
std::filesystem::path libraries_folder();

struct LoadedLibrary {
  std::string name;  // of the file, without its extension
  void* handle;      // for dlsym
  std::filesystem::path file;
};

/// Loads those dynamic libraries in `/Library/MobileSubstrate/DynamicLibraries`, in the order of
/// their names, whose property list of the same name admits this process. The list has a `Filter`
/// with `Bundles` (identifiers), `Executables` (process names) or `Classes` (names that exist
/// here); every kind that is present must match. Leaves out, with a log line each, libraries
/// without a list, and those that ended the process five times while being loaded or whose load did
/// not end, until their file changes. Names a library that is slow to load while it is being
/// loaded, and ends the process when that does not end. Returns the libraries that this call has
/// loaded.
///
/// `tried` are more libraries, anywhere on this machine. Each takes the place of an installed one
/// with the same name. One without a property list beside it is for the home screen.
std::vector<LoadedLibrary> load_libraries(std::string_view bundle_identifier,
                                          std::string_view executable,
                                          std::span<const std::filesystem::path> tried = {});

/// Whether the code of a library that is not loaded yet is running.
bool is_loading_library();
/// Ends the process because that library must not run, and leaves it out until its file changes.
/// The log gets the reason now and at each start.
[[noreturn]] void refuse_current_library(const std::string& reason);

/// The name of the library whose code is at this address, also while it is being loaded; empty for
/// other code.
std::string library_with(const void* code);

/// All libraries loaded into this process so far.
const std::vector<LoadedLibrary>& loaded_libraries();

}  // namespace host::foundation
