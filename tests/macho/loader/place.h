#pragma once

#include "tests/macho/loader/opcode_stream.h"

namespace macho_tests {

/// Where the next pointer stands that a table speaks of: an address of the image as it was linked.
class Place {
 public:
  explicit Place(const Image& image);

  void set(const OpcodeStream& stream, std::uint64_t segment, std::uint64_t offset);
  /// Numbers wrap round: tables go backwards by adding very large ones.
  void advance(std::uint64_t bytes) { offset_ += bytes; }
  /// The address, which has to be of memory that can be written; then moves behind the pointer.
  std::uint64_t take(const OpcodeStream& stream);

 private:
  const Image& image_;
  const Segment* segment_ = nullptr;
  std::uint64_t offset_ = 0;
  std::uint64_t left_ = 0;  // how many pointers a table may speak of at all
};

}  // namespace macho_tests
