#pragma once

#include <cstddef>
#include <string>
#include <system_error>

namespace host::files {

/// The bytes of a file, or why they are unknown.
struct FileContents {
  std::string bytes;
  std::error_code error;

  bool is_missing() const;
  /// Whether something other than a file is in its place.
  bool is_no_file() const;
};

// More than any list of the phone has.
inline constexpr std::size_t kMostBytes = std::size_t{64} << 20;

/// Reads a whole regular file. Larger ones fail with `file_too_large`, folders with
/// `is_a_directory` and devices, pipes and sockets with `not_supported`; none of them makes it
/// wait.
FileContents read_file(const std::string& path, std::size_t most = kMostBytes);

/// Reads the first byte, to tell whether the rest could be read.
std::error_code error_of_reading(const std::string& path);

/// Whether the error says that this process, or the system, has nothing left to open the file with.
/// It says nothing about the file.
bool is_shortage(const std::error_code& error);

}  // namespace host::files
