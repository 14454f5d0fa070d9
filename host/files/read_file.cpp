#include "host/files/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "host/basics/descriptor.h"
#include "host/files/folder.h"

namespace host::files {
namespace {

constexpr std::size_t kPart = std::size_t{16} << 10;

/// Holds nothing when the path does not name a regular file, with the reason in `error`.
Descriptor open_file(const std::string& path, std::error_code& error) {
  Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file || fstat(file.get(), &status) != 0) {
    // A socket cannot be opened at all.
    error = errno == ENXIO ? std::make_error_code(std::errc::not_supported) : last_error();
    return {};
  }
  if (S_ISREG(status.st_mode)) return file;
  error = std::make_error_code(S_ISDIR(status.st_mode) ? std::errc::is_a_directory
                                                       : std::errc::not_supported);
  return {};
}

ssize_t read_part(int file, char* bytes, std::size_t size) {
  ssize_t count = 0;
  do {
    count = read(file, bytes, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

}  // namespace

bool FileContents::is_missing() const {
  return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

bool FileContents::is_no_file() const {
  return error == std::errc::is_a_directory || error == std::errc::not_supported;
}

FileContents read_file(const std::string& path, std::size_t most) {
  FileContents contents;
  const Descriptor file = open_file(path, contents.error);
  if (!file) return contents;
  std::array<char, kPart> part;
  for (;;) {
    const ssize_t count = read_part(file.get(), part.data(), part.size());
    if (count == 0) return contents;
    if (count < 0) return {{}, last_error()};
    contents.bytes.append(part.data(), static_cast<std::size_t>(count));
    if (contents.bytes.size() > most) return {{}, std::make_error_code(std::errc::file_too_large)};
  }
}

std::error_code error_of_reading(const std::string& path) {
  std::error_code error;
  const Descriptor file = open_file(path, error);
  char first = 0;
  if (file && read_part(file.get(), &first, 1) < 0) error = last_error();
  return error;
}

bool is_shortage(const std::error_code& error) {
  return error == std::errc::too_many_files_open ||
         error == std::errc::too_many_files_open_in_system || error == std::errc::not_enough_memory;
}

}  // namespace host::files
