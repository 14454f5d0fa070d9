#pragma once

#include <cstddef>
#include <string>
#include <system_error>

#include "host/basics/descriptor.h"
#include "host/files/stamp.h"

namespace host::files {

/// Whether the error says that there is no file.
bool is_missing(const std::error_code& error);
/// Whether it says that something other than a file is in its place.
bool is_no_file(const std::error_code& error);
/// Whether it says that this process, or the system, has nothing left to open the file with. It
/// says nothing about the file.
bool is_shortage(const std::error_code& error);

/// An open regular file, or why it is not open: folders fail with `is_a_directory`, devices, pipes
/// and sockets with `not_supported`. Opening never waits.
struct OpenFile {
  Descriptor descriptor;
  Stamp stamp;
  std::error_code error;
};

OpenFile open_file(const std::string& path);

/// The bytes of a file, or why they are unknown.
struct FileContents {
  std::string bytes;
  std::error_code error;
};

// More than any list of the phone has.
inline constexpr std::size_t kMostBytes = std::size_t{64} << 20;

/// Reads a whole file. Larger ones fail with `file_too_large`.
FileContents read_file(const OpenFile& file, std::size_t most = kMostBytes);
FileContents read_file(const std::string& path, std::size_t most = kMostBytes);

/// Reads the first byte, to tell whether the rest could be read.
std::error_code error_of_reading(const std::string& path);

}  // namespace host::files
