#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host::foundation {

struct LoadedLibrary {
  std::string name;  // of the file, without its ending
  void* handle;      // for dlsym
};

/// Loads the dynamic libraries of `/Library/MobileSubstrate/DynamicLibraries`, in the order of
/// their names, whose property list of the same name admits this process: `Filter` with `Bundles`
/// (identifiers), `Executables` (process names) or `Classes` (names that exist here); every kind
/// that is given must match. A library without a list is left out, and so is one that brought down
/// the process while being loaded five times, until its file changes. Each omission is one line in
/// the log; the process always goes on. Returns those that this call has loaded.
std::vector<LoadedLibrary> load_libraries(std::string_view bundle_identifier,
                                          std::string_view executable);

/// All that were loaded into this process so far.
const std::vector<LoadedLibrary>& loaded_libraries();

}  // namespace host::foundation
