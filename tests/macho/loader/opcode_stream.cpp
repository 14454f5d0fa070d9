#include "tests/macho/loader/opcode_stream.h"

namespace macho_tests {
namespace {

constexpr std::size_t kFirstTableOffset = 8;
constexpr std::size_t kTableSize = 8;  // an offset in the file, and a length
constexpr std::size_t kCommandSize = 48;
constexpr int kBitsOfPart = 7;
constexpr int kBitsOfNumber = 64;
constexpr std::uint8_t kPartMask = 0x7f;
constexpr std::uint8_t kMoreFollows = 0x80;
constexpr std::uint8_t kSignOfPart = 0x40;

const char* name_of(Table table) {
  switch (table) {
    case Table::kRebase:
      return "rebase table";
    case Table::kBind:
      return "binding table";
    case Table::kWeakBind:
      return "weak binding table";
    case Table::kLazyBind:
      return "lazy binding table";
    case Table::kExports:
      break;
  }
  return "exports table";
}

}  // namespace

OpcodeStream::OpcodeStream(const Image& image, Table table) : image_(image), table_(table) {
  const auto* command = image.command(kDyldInformation);
  if (!command || command->size < kCommandSize)
    throw FormatError("it has no classic dyld information");
  const std::size_t place =
      command->offset + kFirstTableOffset + static_cast<std::size_t>(table) * kTableSize;
  begin_ = at_ = little_32(image.bytes(), place);
  end_ = begin_ + little_32(image.bytes(), place + sizeof(std::uint32_t));
  if (end_ > image.bytes().size())
    throw FormatError(std::string("the ") + name_of(table) + " reaches beyond the file");
}

void OpcodeStream::go_to(std::uint64_t offset) {
  if (offset >= size()) refuse("it points outside itself");
  at_ = begin_ + offset;
}

std::uint8_t OpcodeStream::byte() {
  if (is_at_end()) refuse("it is truncated");
  return image_.bytes()[at_++];
}

std::uint64_t OpcodeStream::number() {
  std::uint64_t value = 0;
  for (int shift = 0;; shift += kBitsOfPart) {
    const std::uint8_t part = byte();
    const std::uint64_t bits = part & kPartMask;
    if (shift >= kBitsOfNumber || bits << shift >> shift != bits) refuse("a number is too large");
    value |= bits << shift;
    if (!(part & kMoreFollows)) return value;
  }
}

std::int64_t OpcodeStream::signed_number() {
  std::uint64_t value = 0;
  for (int shift = 0;;) {
    const std::uint8_t part = byte();
    if (shift >= kBitsOfNumber) refuse("a number is too large");
    value |= static_cast<std::uint64_t>(part & kPartMask) << shift;
    shift += kBitsOfPart;
    if (part & kMoreFollows) continue;
    if (part & kSignOfPart && shift < kBitsOfNumber) value |= ~std::uint64_t{0} << shift;
    return static_cast<std::int64_t>(value);
  }
}

std::string OpcodeStream::text() {
  std::string read;
  while (const char next = static_cast<char>(byte()))
    read.push_back(next);
  return read;
}

void OpcodeStream::refuse(const std::string& reason) const {
  throw FormatError(std::string("the ") + name_of(table_) + " is damaged at byte " +
                    std::to_string(at_ - begin_) + ": " + reason);
}

}  // namespace macho_tests
