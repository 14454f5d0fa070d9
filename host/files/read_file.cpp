#include "host/files/read_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <utility>

#include "host/files/folder.h"

namespace host::files {
namespace {

constexpr std::size_t kPart = std::size_t{16} << 10;

ssize_t read_part(int file, char* bytes, std::size_t size) {
  ssize_t count = 0;
  do {
    count = read(file, bytes, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

}  // namespace

bool is_missing(const std::error_code& error) {
  return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

bool is_no_file(const std::error_code& error) {
  return error == std::errc::is_a_directory || error == std::errc::not_supported;
}

bool is_shortage(const std::error_code& error) {
  return error == std::errc::too_many_files_open ||
         error == std::errc::too_many_files_open_in_system || error == std::errc::not_enough_memory;
}

OpenFile open_file(const std::string& path) {
  Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
  struct stat status {};
  if (!file || fstat(file.get(), &status) != 0) {
    // A socket cannot be opened at all.
    return {{}, {}, errno == ENXIO ? std::make_error_code(std::errc::not_supported) : last_error()};
  }
  if (S_ISREG(status.st_mode)) return {std::move(file), stamp_of(status), {}};
  const auto what = S_ISDIR(status.st_mode) ? std::errc::is_a_directory : std::errc::not_supported;
  return {{}, {}, std::make_error_code(what)};
}

FileContents read_file(const OpenFile& file, std::size_t most) {
  if (file.error) return {{}, file.error};
  FileContents contents;
  std::array<char, kPart> part;
  for (;;) {
    const ssize_t count = read_part(file.descriptor.get(), part.data(), part.size());
    if (count == 0) return contents;
    if (count < 0) return {{}, last_error()};
    contents.bytes.append(part.data(), static_cast<std::size_t>(count));
    if (contents.bytes.size() > most) return {{}, std::make_error_code(std::errc::file_too_large)};
  }
}

FileContents read_file(const std::string& path, std::size_t most) {
  return read_file(open_file(path), most);
}

std::error_code error_of_reading(const std::string& path) {
  const OpenFile file = open_file(path);
  char first = 0;
  if (!file.error && read_part(file.descriptor.get(), &first, 1) < 0) return last_error();
  return file.error;
}

}  // namespace host::files
