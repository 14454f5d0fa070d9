#pragma once

#include <string>
#include <string_view>

namespace host::foundation {

/// Atomically replaces `path` with a file of these bytes, and leaves no partial file behind even if
/// the process is killed: the file is unnamed until it is complete. At most one complete file
/// remains under the name `staged_beside`; the next write removes it. Returns false and changes
/// nothing when the folder does not support such files.
bool write_atomically(const std::string& path, std::string_view bytes);

/// The path at which a complete file lies for a moment before it replaces `path`.
std::string staged_beside(const std::string& path);

}  // namespace host::foundation
