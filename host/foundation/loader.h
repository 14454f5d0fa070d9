#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::foundation {

struct LoadedLibrary {
  std::string name;  // of the file, without its extension
  void* handle;      // for dlsym
};

/// Loads those dynamic libraries in `/Library/MobileSubstrate/DynamicLibraries`, in the order of
/// their names, whose property list of the same name admits this process. The list has a `Filter`
/// with `Bundles` (identifiers), `Executables` (process names) or `Classes` (names that exist
/// here); every kind that is present must match. Leaves out, with a log line each, libraries
/// without a list, and those that crashed the process five times while being loaded, until their
/// file changes. The process always continues. Returns the libraries that this call has loaded.
std::vector<LoadedLibrary> load_libraries(std::string_view bundle_identifier,
                                          std::string_view executable);

/// All libraries loaded into this process so far.
const std::vector<LoadedLibrary>& loaded_libraries();

}  // namespace host::foundation
