#pragma once

#include <filesystem>

#include "host/basics/descriptor.h"

namespace host::launcher {

// Unix sockets. Both functions return an empty descriptor on failure, with the reason in `errno`.

/// Makes a socket at `path` that accepts connections.
Descriptor listening_socket(const std::filesystem::path& path);
/// Connects to the socket at `path`.
Descriptor connected_socket(const std::filesystem::path& path);

}  // namespace host::launcher
