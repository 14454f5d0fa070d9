#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

namespace host::fuzz {

/// A file in memory with one input, for readers that want a path.
class InputFile {
 public:
  InputFile(const std::uint8_t* data, std::size_t size)
      : file_(memfd_create("input", MFD_CLOEXEC)) {
    if (::write(file_, data, size) != static_cast<ssize_t>(size)) std::abort();
  }
  ~InputFile() { ::close(file_); }
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

 private:
  int file_;
};

}  // namespace host::fuzz
