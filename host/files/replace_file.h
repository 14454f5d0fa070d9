#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace host::files {

struct Replacement {
  std::error_code error;   // why nothing has changed
  std::error_code unread;  // why the old contents could not be read
  std::string kept;        // where they are kept then; empty if that was impossible, too
};

/// Replaces the file at `path` by one with these bytes, which are on the disk when this returns. A
/// reader sees the old file or the new one, never a part, whenever the process or the machine
/// stops. Permissions are kept, and a symbolic link stays one. A file that cannot be read is kept
/// beside the new one, which its owner can read; `unread` is why the caller could not read it, if
/// it has tried.
Replacement replace_file(const std::string& path, std::string_view bytes,
                         const std::error_code& unread = {});

}  // namespace host::files
