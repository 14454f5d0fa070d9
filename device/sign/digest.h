#pragma once

#include "device/macho/bytes.h"

namespace sonavue::device {

/// A hash algorithm, with its number in the signature's format.
struct DigestKind {
  std::uint8_t number;
  std::uint8_t size;
  const char* name;
};

inline constexpr DigestKind kSha1{1, 20, "SHA1"};
inline constexpr DigestKind kSha256{2, 32, "SHA256"};

Bytes digest(const DigestKind& kind, const std::uint8_t* data, std::size_t size);

}  // namespace sonavue::device
