#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace host::files {

/// Where a file is kept that is about to be replaced, or why it is not.
struct Aside {
  std::string path;
  std::error_code error;
};

/// Renames the file to the first free name of `PATH.SUFFIX`, `PATH.SUFFIX-2`, `PATH.SUFFIX-3`…
Aside set_aside(const std::string& path, std::string_view suffix);

/// The same, but the file keeps its name as well, unless it belongs to another user: then it can
/// only be renamed.
Aside keep_beside(const std::string& path, std::string_view suffix);

/// Undoes either of them: `path` has the file again, and nothing else does.
void put_back(const Aside& aside, const std::string& path);

}  // namespace host::files
