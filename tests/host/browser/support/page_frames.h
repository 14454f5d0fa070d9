#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace host::test {

enum class Opcode : std::uint8_t { kText = 1, kBinary = 2, kClose = 8, kPing = 9 };

/// A whole frame as a browser sends it, masked.
inline std::string frame(std::string_view bytes, Opcode opcode = Opcode::kBinary) {
  std::string made;
  made += static_cast<char>(0x80 | static_cast<int>(opcode));
  if (bytes.size() < 126) {
    made += static_cast<char>(0x80 | bytes.size());
  } else if (bytes.size() < 65536) {
    made += static_cast<char>(0x80 | 126);
    made += static_cast<char>(bytes.size() >> 8);
    made += static_cast<char>(bytes.size() & 255);
  } else {
    made += static_cast<char>(0x80 | 127);
    for (int shift = 56; shift >= 0; shift -= 8)
      made += static_cast<char>((static_cast<std::uint64_t>(bytes.size()) >> shift) & 255);
  }
  constexpr std::array<char, 4> kMask{1, 2, 3, 4};
  made.append(kMask.data(), kMask.size());
  for (std::size_t i = 0; i < bytes.size(); ++i)
    made += static_cast<char>(bytes[i] ^ kMask[i % kMask.size()]);
  return made;
}

/// Takes the first frame of the server's, unmasked, from the bytes; empty when it is not whole yet.
inline std::string take_frame(std::string& bytes) {
  if (bytes.size() < 2) return {};
  const auto at = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  std::size_t size = at(1) & 127;
  std::size_t head = 2;
  if (size >= 126) {
    const std::size_t digits = size == 126 ? 2 : 8;
    if (bytes.size() < head + digits) return {};
    size = 0;
    for (std::size_t i = 0; i < digits; ++i)
      size = size << 8 | at(head + i);
    head += digits;
  }
  if (bytes.size() < head + size) return {};
  std::string made = bytes.substr(head, size);
  bytes.erase(0, head + size);
  return made;
}

}  // namespace host::test
