#pragma once

#include "tests/macho/loader/memory.h"

namespace macho_tests {

/// The frames of an image's code, made known to this process: exceptions find their way through it
/// for as long as the object is there.
class RegisteredFrames {
 public:
  /// Refuses a table that is damaged, or speaks of code outside of the image.
  RegisteredFrames(const Image& image, const Memory& memory);
  ~RegisteredFrames();
  RegisteredFrames(const RegisteredFrames&) = delete;
  RegisteredFrames& operator=(const RegisteredFrames&) = delete;

 private:
  Bytes table_;
};

}  // namespace macho_tests
