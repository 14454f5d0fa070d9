#pragma once

#include <sys/stat.h>

#include <string>

namespace host::media {

// Why a library must not open the file; empty when it may. Opening a pipe would block until its
// other end opens, and a device may have no end, so only regular files are accepted.
inline std::string reason_not_to_open(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) return "cannot be reached";
  if (!S_ISREG(status.st_mode)) return "is not a plain file";
  return status.st_size == 0 ? "is empty" : std::string{};
}

}  // namespace host::media
