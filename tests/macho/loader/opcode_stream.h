#pragma once

#include "device/macho/image.h"

namespace macho_tests {

using namespace sonavue::device;

/// The tables that the dynamic linker reads, as the load command lists them.
enum class Table { kRebase, kBind, kWeakBind, kLazyBind, kExports };

/// One half of a byte is the opcode, the other half is a small operand.
inline constexpr std::uint8_t kOpcodeMask = 0xf0;
inline constexpr std::uint8_t kImmediateMask = 0x0f;
/// The only kind of place on 64-bit processors.
inline constexpr std::uint8_t kPointerType = 1;

/// Reads one of these tables byte by byte. Errors are thrown as a FormatError that names the table
/// and the offset in it.
class OpcodeStream {
 public:
  OpcodeStream(const Image& image, Table table);

  bool is_at_end() const { return at_ == end_; }
  std::uint64_t size() const { return end_ - begin_; }
  void go_to(std::uint64_t offset);

  std::uint8_t byte();
  std::uint64_t number();
  std::int64_t signed_number();
  std::string text();

  [[noreturn]] void refuse(const std::string& reason) const;

 private:
  const Image& image_;
  Table table_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::size_t at_ = 0;
};

}  // namespace macho_tests
