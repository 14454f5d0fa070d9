#pragma once

#include "tests/macho/loader/opcode_stream.h"

namespace macho_tests {

/// The place of the next pointer that a table refers to, as a linked address of the image.
class Place {
 public:
  explicit Place(const Image& image);

  void set(const OpcodeStream& stream, std::uint64_t segment, std::uint64_t offset);
  /// The addition may wrap around: tables move backwards by adding very large numbers.
  void advance(std::uint64_t bytes) { offset_ += bytes; }
  /// Returns the address and moves past the pointer. Throws FormatError if it is not writable.
  std::uint64_t take(const OpcodeStream& stream);

 private:
  const Image& image_;
  const Segment* segment_ = nullptr;
  std::uint64_t offset_ = 0;
  std::uint64_t left_ = 0;  // how many more pointers the table may refer to
};

}  // namespace macho_tests
