#pragma once

#include <cstddef>
#include <cstdint>

namespace sonavue {

/// Searches for a byte string at sixteen places at once. Where its first and last byte match, the
/// bytes in between are compared.
class Needle {
 public:
  using Byte = unsigned char;
  /// This many bytes after a searched text must be readable. Their values do not matter.
  static constexpr std::size_t kReadBehind = 16;

  /// `length` is at least 1. The bytes are not copied and must outlive the needle.
  Needle(const Byte* bytes, std::size_t length)
      : bytes_(bytes), last_(length - 1), head_(all_of(bytes[0])), tail_(all_of(bytes[last_])) {}

  /// The first occurrence between `begin` and `end`; null if there is none.
  const Byte* find_in(const Byte* begin, const Byte* end) const {
    if (end - begin <= static_cast<std::ptrdiff_t>(last_)) return nullptr;
    const Byte* const stop = end - last_;
    for (const Byte* place = begin; place < stop; place += sizeof(Block)) {
      const auto same = (block_at(place) == head_) & (block_at(place + last_) == tail_);
      const auto halves = reinterpret_cast<Halves>(same);
      if (!(halves[0] | halves[1])) continue;
      for (int half = 0; half < 2; ++half) {
        if (const Byte* found = first_of(place + half * kHalf, halves[half], stop)) return found;
      }
    }
    return nullptr;
  }

 private:
  typedef Byte Block __attribute__((vector_size(16)));
  typedef std::uint64_t Halves __attribute__((vector_size(16)));
  static constexpr int kHalf = sizeof(std::uint64_t);
  static constexpr int kBitsOfByte = 8;

  static Block block_at(const Byte* place) {
    Block block;
    __builtin_memcpy(&block, place, sizeof block);
    return block;
  }
  static Block all_of(Byte byte) { return Block{} + byte; }

  // Each byte of `places` that is set marks a place to compare. Both homes are little-endian.
  const Byte* first_of(const Byte* begin, std::uint64_t places, const Byte* stop) const {
    while (places) {
      const int index = __builtin_ctzll(places) / kBitsOfByte;
      const Byte* const place = begin + index;
      if (place >= stop) return nullptr;
      if (last_ < 2 || __builtin_memcmp(place + 1, bytes_ + 1, last_ - 1) == 0) return place;
      places &= ~(std::uint64_t{0xff} << index * kBitsOfByte);
    }
    return nullptr;
  }

  const Byte* bytes_;
  std::size_t last_;
  Block head_;
  Block tail_;
};

}  // namespace sonavue
