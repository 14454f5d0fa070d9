#pragma once

#include <filesystem>

#include "host/basics/descriptor.h"

namespace host::launcher {

// Unix sockets. Both functions return an empty descriptor when the path is too long for one.

/// Makes a socket at `path` that accepts connections.
Descriptor listening_socket(const std::filesystem::path& path);
/// Connects to the socket at `path`.
Descriptor connected_socket(const std::filesystem::path& path);

}  // namespace host::launcher
