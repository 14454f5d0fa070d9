#include "tests/macho/loader/place.h"
#include "tests/macho/loader/tables.h"

namespace macho_tests {
namespace {

enum Opcode : std::uint8_t {
  kDone = 0x00,
  kSetType = 0x10,
  kSetPlace = 0x20,
  kAdvance = 0x30,
  kAdvanceByPointers = 0x40,
  kRebaseSome = 0x50,
  kRebaseMany = 0x60,
  kRebaseAndAdvance = 0x70,
  kRebaseManySkipping = 0x80,
};

}  // namespace

std::vector<std::uint64_t> rebased_places(const Image& image) {
  OpcodeStream stream(image, Table::kRebase);
  Place place(image);
  std::vector<std::uint64_t> places;
  const auto rebase = [&](std::uint64_t count, std::uint64_t skipped = 0) {
    for (; count > 0; --count) {
      places.push_back(place.take(stream));
      place.advance(skipped);
    }
  };
  while (!stream.is_at_end()) {
    const std::uint8_t code = stream.byte();
    const std::uint8_t immediate = code & kImmediateMask;
    switch (code & kOpcodeMask) {
      case kDone:
        return places;
      case kSetType:
        if (immediate != kPointerType) stream.refuse("only pointers can be rebased");
        break;
      case kSetPlace:
        place.set(stream, immediate, stream.number());
        break;
      case kAdvance:
        place.advance(stream.number());
        break;
      case kAdvanceByPointers:
        place.advance(immediate * sizeof(void*));
        break;
      case kRebaseSome:
        rebase(immediate);
        break;
      case kRebaseMany:
        rebase(stream.number());
        break;
      case kRebaseAndAdvance:
        rebase(1, stream.number());
        break;
      case kRebaseManySkipping: {
        const std::uint64_t count = stream.number();
        rebase(count, stream.number());
        break;
      }
      default:
        stream.refuse("an opcode is unknown");
    }
  }
  return places;
}

}  // namespace macho_tests
