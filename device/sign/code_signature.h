#pragma once

#include "device/macho/image.h"

namespace sonavue::device {

/// Numbers of the signature's format, which is big-endian.
inline constexpr std::uint32_t kSuperBlobMagic = 0xfade0cc0;
inline constexpr std::uint32_t kCodeDirectoryMagic = 0xfade0c02;
inline constexpr std::uint32_t kRequirementsMagic = 0xfade0c01;
inline constexpr std::uint32_t kCodeDirectorySlot = 0;
inline constexpr std::uint32_t kRequirementsSlot = 2;
inline constexpr std::uint32_t kAlternateSlot = 0x1000;
inline constexpr std::uint32_t kAdHoc = 0x2;
inline constexpr std::size_t kPageSize = 4096;

/// Returns the library with an ad-hoc signature: it has no signer, but a hash for every page. A
/// directory of SHA-1 hashes comes first, since older systems know no others, followed by one of
/// SHA-256 hashes. The same bytes and identifier give the same signature. Throws FormatError if the
/// library cannot be signed.
Bytes signed_library(const Image& library, const std::string& identifier);

}  // namespace sonavue::device
