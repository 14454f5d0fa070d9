#pragma once

#include <sys/stat.h>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>

namespace host::media {

// Identifies the state of a file when it was last read. A file with the same stamp is not read
// again.
struct FileStamp {
  std::int64_t size = 0;
  std::int64_t modified_ns = 0;

  auto operator<=>(const FileStamp&) const = default;
};

inline FileStamp stamp_of(const struct stat& status) {
  constexpr std::int64_t nanoseconds = 1'000'000'000;
  return {status.st_size, status.st_mtim.tv_sec * nanoseconds + status.st_mtim.tv_nsec};
}

// Empty when the file is out of reach.
inline std::optional<FileStamp> stamp_of_file(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return std::nullopt;
  return stamp_of(status);
}

}  // namespace host::media
