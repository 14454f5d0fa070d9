#include <cstdlib>

#include "host/media/picture.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto picture = host::media::decode_picture({data, size}, 64);
  if (!picture) return 0;
  const auto pixels =
      static_cast<std::size_t>(picture->width) * static_cast<std::size_t>(picture->height);
  if (picture->width > 64 || picture->height > 64 || picture->pixels.size() != pixels) std::abort();
  return 0;
}
