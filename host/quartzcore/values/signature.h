#pragma once

#include <cstdint>

#include "host/quartzcore/values/rgba.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::quartzcore {

/// Mixes `value` into a running signature.
inline std::uint64_t mix_signature(std::uint64_t signature, std::uint64_t value) {
  signature ^= value + 0x9e3779b97f4a7c15ULL + (signature << 6) + (signature >> 2);
  return signature * 0xff51afd7ed558ccdULL;
}
inline std::uint64_t mix_signature(std::uint64_t signature, double value) {
  std::uint64_t bits = 0;
  static_assert(sizeof bits == sizeof value);
  __builtin_memcpy(&bits, &value, sizeof bits);
  return mix_signature(signature, bits);
}
inline std::uint64_t mix_signature(std::uint64_t signature, const Rgba& c) {
  return mix_signature(
      mix_signature(mix_signature(mix_signature(signature, c.red), c.green), c.blue), c.alpha);
}
inline std::uint64_t mix_signature(std::uint64_t signature, CGPoint p) {
  return mix_signature(mix_signature(signature, p.x), p.y);
}
inline std::uint64_t mix_signature(std::uint64_t signature, CGRect r) {
  return mix_signature(mix_signature(signature, r.origin), CGPoint{r.size.width, r.size.height});
}

}  // namespace host::quartzcore
