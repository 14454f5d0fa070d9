#pragma once

#include <string>
#include <string_view>

namespace host::foundation {

/// Puts a file with these bytes in the place of `path` in one step, and leaves nothing beside it,
/// even when the process is killed on the way: its bytes have no name until they are complete. At
/// most one complete file stays under the name `staged_beside`, which the next write takes away.
/// False, and nothing has changed, when the folder cannot take such a file.
bool write_atomically(const std::string& path, std::string_view bytes);

/// Where a complete file stands for a moment before it takes the place of `path`.
std::string staged_beside(const std::string& path);

}  // namespace host::foundation
