#pragma once

#include <cstddef>
#include <cstdint>

namespace sonavue {

/// Packs eight bytes, each all ones or all zeros, into eight bits, the lowest byte first. The
/// multiplication moves the lowest bit of each byte to its place in the highest byte.
constexpr std::uint64_t bits_of_bytes(std::uint64_t bytes) {
  return (bytes & 0x0101010101010101) * 0x0102040810204080 >> 56;
}
// Checked here because processors with SSE2 do not use it, so their searches cannot reveal an
// error.
static_assert(bits_of_bytes(0) == 0 && bits_of_bytes(~std::uint64_t{0}) == 0xff);
static_assert(bits_of_bytes(0x00000000000000ff) == 0x01);
static_assert(bits_of_bytes(0xff00000000000000) == 0x80);
static_assert(bits_of_bytes(0xff00ffff0000ff00) == 0xb2);

/// Searches for one or two bytes at sixty-four places at once. Most titles contain any given
/// letter, so marking all its places is faster than repeatedly searching for the next one.
class ShortNeedle {
 public:
  using Byte = unsigned char;
  static constexpr std::size_t kLongest = 2;
  /// The number of places in one step. Each is one bit of a word; the first is the lowest bit.
  static constexpr std::size_t kPlaces = 64;
  /// This many bytes after a searched text must be readable.
  static constexpr std::size_t kReadBehind = kPlaces + kLongest;

  ShortNeedle(const Byte* bytes, std::size_t length)
      : last_(length - 1), head_(all_of(bytes[0])), tail_(all_of(bytes[last_])) {}

  /// The places at which the needle begins, as bits.
  std::uint64_t places_in(const Byte* text) const {
    return bits(text, [&](const Byte* at) {
      return (block_at(at) == head_) & (block_at(at + last_) == tail_);
    });
  }
  static std::uint64_t places_of(Byte byte, const Byte* text) {
    return bits(text, [wanted = all_of(byte)](const Byte* at) { return block_at(at) == wanted; });
  }

 private:
  typedef Byte Block __attribute__((vector_size(16)));
  typedef char Bits __attribute__((vector_size(16)));
  typedef std::uint64_t Halves __attribute__((vector_size(16)));

  static Block block_at(const Byte* place) {
    Block block;
    __builtin_memcpy(&block, place, sizeof block);
    return block;
  }
  static Block all_of(Byte byte) { return Block{} + byte; }

  template <class Compare>
  static std::uint64_t bits(const Byte* text, Compare compare) {
    std::uint64_t bits = 0;
    for (std::size_t place = 0; place < kPlaces; place += sizeof(Block))
      bits |= bits_of(reinterpret_cast<Bits>(compare(text + place))) << place;
    return bits;
  }

  // Packs bytes, each all ones or all zeros, into one bit each.
  static std::uint64_t bits_of(Bits bytes) {
#ifdef __SSE2__
    return static_cast<unsigned>(__builtin_ia32_pmovmskb128(bytes));
#else
    const auto halves = reinterpret_cast<Halves>(bytes);
    return bits_of_bytes(halves[0]) | bits_of_bytes(halves[1]) << 8;
#endif
  }

  std::size_t last_;
  Block head_;
  Block tail_;
};

}  // namespace sonavue
