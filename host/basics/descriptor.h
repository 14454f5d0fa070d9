#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace host {

/// Owns a file descriptor and closes it. Its value is -1 when it holds none.
class Descriptor {
 public:
  Descriptor() = default;
  explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
  Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~Descriptor() {
    if (descriptor_ >= 0) close(descriptor_);
  }

  int get() const { return descriptor_; }
  explicit operator bool() const { return descriptor_ >= 0; }
  void reset() { *this = Descriptor(); }

 private:
  int descriptor_ = -1;
};

/// Keeps the programs that this process starts from inheriting a descriptor that it was given.
inline void close_on_exec(int descriptor) {
  if (descriptor >= 0) fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

}  // namespace host
