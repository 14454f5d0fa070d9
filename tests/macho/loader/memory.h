#pragma once

#include "tests/macho/loader/opcode_stream.h"

namespace macho_tests {

/// The segments of an image in this process's memory, at the distances from each other that they
/// were linked with; first all of it writable.
class Memory {
 public:
  /// Refuses segments that overlap, or are not whole pages of a sensible size.
  explicit Memory(const Image& image);
  ~Memory();
  Memory(const Memory&) = delete;
  Memory& operator=(const Memory&) = delete;

  /// Gives every segment the protection that the file wants.
  void protect(const Image& image);

  bool is_inside(std::uint64_t address) const { return address >= lowest_ && address < end_; }
  /// How far the image has moved; numbers wrap round.
  std::uintptr_t slide() const { return base_ - lowest_; }
  /// Where the linked address lies now.
  void* at(std::uint64_t address) const { return reinterpret_cast<void*>(address + slide()); }

 private:
  void map();

  std::uint64_t lowest_ = 0;
  std::uint64_t end_ = 0;
  std::uintptr_t base_ = 0;
};

}  // namespace macho_tests
