#pragma once

#include "tests/macho/loader/opcode_stream.h"

namespace macho_tests {

/// The segments of an image in this process's memory, at their linked distances from each other.
/// All of it is writable at first.
class Memory {
 public:
  /// Throws FormatError if segments overlap, are not page-aligned, or have an implausible size.
  explicit Memory(const Image& image);
  ~Memory();
  Memory(const Memory&) = delete;
  Memory& operator=(const Memory&) = delete;

  /// Sets the protection of every segment as the file requests.
  void protect(const Image& image);

  bool is_inside(std::uint64_t address) const { return address >= lowest_ && address < end_; }
  /// The image's offset from its linked address. The subtraction may wrap around.
  std::uintptr_t slide() const { return base_ - lowest_; }
  /// The current address of a linked address.
  void* at(std::uint64_t address) const { return reinterpret_cast<void*>(address + slide()); }

 private:
  void map();

  std::uint64_t lowest_ = 0;
  std::uint64_t end_ = 0;
  std::uintptr_t base_ = 0;
};

}  // namespace macho_tests
