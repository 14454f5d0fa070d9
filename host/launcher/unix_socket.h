#pragma once

#include <filesystem>

#include "host/basics/descriptor.h"

namespace host::launcher {

// Sockets that are files. None is made or reached where the path is too long for one.

/// A socket at `path` that others can connect to from now on.
Descriptor listening_socket(const std::filesystem::path& path);
/// A connection to whoever listens there.
Descriptor connected_socket(const std::filesystem::path& path);

}  // namespace host::launcher
