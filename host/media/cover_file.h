#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "host/media/picture.h"
#include "host/media/track.h"

namespace host::media {

// Where to read a cover from. It outlives the library that it came from.
struct CoverFile {
  enum class Home { in_song, own_file };

  std::uint64_t key = 0;  // The same picture has the same key; 0 means no cover.
  std::string path;
  Home home = Home::own_file;
};

CoverFile cover_of(const Track& track);

// Reads and decodes a cover, on any thread; empty when it cannot be shown.
std::optional<Picture> decode_cover(const CoverFile& cover, int longest_side);

}  // namespace host::media
