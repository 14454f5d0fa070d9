#pragma once

#include "tests/macho/loader/memory.h"

namespace macho_tests {

/// Registers the frames of an image's code with this process, so that exceptions can pass through
/// the code for as long as this object exists.
class RegisteredFrames {
 public:
  /// Throws FormatError if the table is damaged or refers to code outside the image.
  RegisteredFrames(const Image& image, const Memory& memory);
  ~RegisteredFrames();
  RegisteredFrames(const RegisteredFrames&) = delete;
  RegisteredFrames& operator=(const RegisteredFrames&) = delete;

 private:
  Bytes table_;
};

}  // namespace macho_tests
