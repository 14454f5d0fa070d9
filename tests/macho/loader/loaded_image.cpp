#include "tests/macho/loader/loaded_image.h"

#include <algorithm>
#include <cstring>

namespace macho_tests {
namespace {

constexpr std::uint32_t kKindOfSection = 0xff;
constexpr std::uint32_t kInitialisers = 0x09;
constexpr std::uint32_t kFirstThreadLocal = 0x11;
constexpr std::uint32_t kLastOfLaterSystems = 0x16;
constexpr std::uint32_t kRunnable = 4;
constexpr std::uint64_t kPointer = sizeof(void*);

/// Rejects kinds of sections that would otherwise be ignored silently.
void check_sections(const Image& image) {
  for (const Section& each : image.sections()) {
    const std::uint32_t kind = each.flags & kKindOfSection;
    if (kind >= kFirstThreadLocal && kind <= kLastOfLaterSystems)
      throw FormatError(each.name + " has a kind that is not loaded here");
    if (each.name.rfind("__objc_", 0) == 0)
      throw FormatError(each.name + " would have to be registered by the runtime");
  }
}

bool is_code(const Image& image, std::uint64_t address) {
  return std::any_of(image.segments().begin(), image.segments().end(), [&](const Segment& each) {
    return each.protection & kRunnable && address >= each.address &&
           address - each.address < each.memory_size;
  });
}

}  // namespace

LoadedImage::LoadedImage(const Image& image, const FindSymbol& find)
    : exports_(exports(image)),
      bindings_(macho_tests::bindings(image)),
      memory_(image),
      frames_(image, memory_) {
  check_sections(image);
  for (const auto& [name, address] : exports_)
    if (!memory_.is_inside(address)) throw FormatError(name + " is outside the image");
  read_initialisers(image);
  rebase(image);
  bind(find);
  memory_.protect(image);
}

void LoadedImage::rebase(const Image& image) {
  for (const std::uint64_t place : rebased_places(image)) {
    std::uintptr_t pointer = 0;
    std::memcpy(&pointer, memory_.at(place), sizeof pointer);
    pointer += memory_.slide();
    std::memcpy(memory_.at(place), &pointer, sizeof pointer);
  }
}

void LoadedImage::bind(const FindSymbol& find) {
  for (const Binding& each : bindings_) {
    const std::uintptr_t pointer = address_for(each, find);
    std::memcpy(memory_.at(each.place), &pointer, sizeof pointer);
  }
}

std::uintptr_t LoadedImage::address_for(const Binding& binding, const FindSymbol& find) const {
  const auto own = exports_.find(binding.symbol);
  const bool is_own = binding.library.empty() && own != exports_.end();
  const void* found = is_own ? memory_.at(own->second) : find(binding.library, binding.symbol);
  if (found)
    return reinterpret_cast<std::uintptr_t>(found) + static_cast<std::uint64_t>(binding.addend);
  if (binding.may_be_missing) return 0;
  throw FormatError("it needs " + binding.symbol + " of " +
                    (binding.library.empty() ? "any library" : binding.library) +
                    ", which is not available");
}

// The file has the addresses as linked, so they can be checked before anything is mapped.
void LoadedImage::read_initialisers(const Image& image) {
  for (const Section& each : image.sections()) {
    if ((each.flags & kKindOfSection) != kInitialisers) continue;
    if (each.size % kPointer != 0) throw FormatError(each.name + " is not a list of pointers");
    bytes_at(image.bytes(), each.offset, each.size);
    for (std::uint64_t at = 0; at < each.size; at += kPointer) {
      const std::uint64_t address = little_64(image.bytes(), each.offset + at);
      if (!is_code(image, address))
        throw FormatError(each.name + " holds something at byte " + std::to_string(at) +
                          " that is not code");
      initialisers_.push_back(address);
    }
  }
}

void LoadedImage::run_initialisers() const {
  for (const std::uint64_t each : initialisers_)
    reinterpret_cast<void (*)()>(memory_.at(each))();
}

void* LoadedImage::exported(const std::string& symbol) const {
  const auto found = exports_.find(symbol);
  return found == exports_.end() ? nullptr : memory_.at(found->second);
}

}  // namespace macho_tests
