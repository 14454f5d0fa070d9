#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace host::media {

// A fixed 64-bit hash. Identifiers made from it are stored on disk, so it must return the same
// value in every build and on every machine, which std::hash does not promise.
inline std::uint64_t stable_hash(std::string_view bytes, std::uint64_t seed = 0) {
  constexpr std::uint64_t odd = 0x9e3779b97f4a7c15ULL;
  std::uint64_t hash = seed ^ (bytes.size() * odd);
  auto mix = [&hash](std::uint64_t word) {
    hash = (hash ^ word) * 0xbf58476d1ce4e5b9ULL;
    hash ^= hash >> 29;
  };
  while (bytes.size() >= 8) {
    std::uint64_t word;
    std::memcpy(&word, bytes.data(), 8);
    mix(word);
    bytes.remove_prefix(8);
  }
  std::uint64_t rest = 0;
  for (const char byte : bytes)
    rest = rest << 8 | static_cast<unsigned char>(byte);
  mix(rest);
  mix(odd);
  return hash ^ hash >> 32;
}

// Returns an identifier: positive as a signed 64-bit number, and never 0, which means none.
inline std::uint64_t identifier_from(std::uint64_t hash) {
  const std::uint64_t positive = hash & 0x7fffffffffffffffULL;
  return positive == 0 ? 1 : positive;
}

}  // namespace host::media
