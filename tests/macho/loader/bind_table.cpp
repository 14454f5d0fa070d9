#include "tests/macho/loader/place.h"
#include "tests/macho/loader/tables.h"

namespace macho_tests {
namespace {

constexpr std::uint8_t kWeakImport = 1;
constexpr std::uint8_t kStrongDefinition = 8;

enum Opcode : std::uint8_t {
  kDone = 0x00,
  kSetLibrary = 0x10,
  kSetFarLibrary = 0x20,
  kSetSpecialLibrary = 0x30,
  kSetSymbol = 0x40,
  kSetType = 0x50,
  kSetAddend = 0x60,
  kSetPlace = 0x70,
  kAdvance = 0x80,
  kBind = 0x90,
  kBindAndAdvance = 0xa0,
  kBindAndAdvanceByPointers = 0xb0,
  kBindManySkipping = 0xc0,
};

class Reader {
 public:
  Reader(const Image& image, Table table, std::vector<Binding>& found)
      : stream_(image, table),
        place_(image),
        is_lazy_(table == Table::kLazyBind),
        libraries_(image.libraries()),
        found_(found) {}

  void read() {
    while (!stream_.is_at_end()) {
      const std::uint8_t code = stream_.byte();
      // In the lazy table the done opcode only ends one entry.
      if (code == kDone && !is_lazy_) return;
      if (code != kDone) step(code & kOpcodeMask, code & kImmediateMask);
    }
  }

 private:
  void step(std::uint8_t opcode, std::uint8_t immediate) {
    switch (opcode) {
      case kSetLibrary:
        return set_library(immediate);
      case kSetFarLibrary:
        return set_library(stream_.number());
      case kSetSpecialLibrary:
        current_.library.clear();
        return;
      case kSetSymbol:
        current_.symbol = stream_.text();
        current_.may_be_missing = immediate & kWeakImport;
        // Only states that this image has the strong definition; binds nothing.
        if (immediate & kStrongDefinition) current_.symbol.clear();
        return;
      case kSetType:
        if (immediate != kPointerType) stream_.refuse("only pointers can be bound");
        return;
      case kSetAddend:
        current_.addend = stream_.signed_number();
        return;
      case kSetPlace:
        return place_.set(stream_, immediate, stream_.number());
      case kAdvance:
        return place_.advance(stream_.number());
      default:
        return bind_by(opcode, immediate);
    }
  }

  void bind_by(std::uint8_t opcode, std::uint8_t immediate) {
    switch (opcode) {
      case kBind:
        return bind(1, 0);
      case kBindAndAdvance:
        return bind(1, stream_.number());
      case kBindAndAdvanceByPointers:
        return bind(1, immediate * sizeof(void*));
      case kBindManySkipping: {
        const std::uint64_t count = stream_.number();
        return bind(count, stream_.number());
      }
      default:
        stream_.refuse("an opcode is unknown");
    }
  }

  void bind(std::uint64_t count, std::uint64_t skipped) {
    if (current_.symbol.empty()) stream_.refuse("no symbol was named");
    for (; count > 0; --count) {
      current_.place = place_.take(stream_);
      found_.push_back(current_);
      place_.advance(skipped);
    }
  }

  void set_library(std::uint64_t ordinal) {
    if (ordinal > libraries_.size()) stream_.refuse("there is no such library");
    current_.library = ordinal == 0 ? std::string() : libraries_[ordinal - 1];
  }

  OpcodeStream stream_;
  Place place_;
  bool is_lazy_;
  std::vector<std::string> libraries_;
  std::vector<Binding>& found_;
  Binding current_{};
};

}  // namespace

std::vector<Binding> bindings(const Image& image) {
  std::vector<Binding> found;
  for (const Table table : {Table::kBind, Table::kWeakBind, Table::kLazyBind})
    Reader(image, table, found).read();
  return found;
}

}  // namespace macho_tests
