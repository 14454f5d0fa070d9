#pragma once

#include <string>
#include <system_error>

namespace host::files {

/// Replaces `path` by the file that it leads to when it is a symbolic link, or a chain of them.
/// That file need not exist. Fails, with `path` unchanged, when the chain does not end.
std::error_code follow_links(std::string& path);

}  // namespace host::files
