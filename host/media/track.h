#pragma once

#include <cstdint>
#include <string_view>

#include "host/media/picture_header.h"

namespace host::media {

enum class MediaType : std::uint32_t { music = 1 };

// One song of a library. The texts belong to the library that the track came from, and each is
// followed by a zero byte.
struct Track {
  std::uint64_t id = 0;
  std::uint64_t album_id = 0;
  std::string_view title;
  std::string_view artist;
  std::string_view album_artist;
  std::string_view album;
  std::string_view genre;
  std::string_view composer;
  std::string_view path;
  // The picture file beside the song; empty when the picture is inside the song or missing.
  std::string_view picture_path;
  // The same picture has the same key in every song; 0 means no picture.
  std::uint64_t artwork_key = 0;
  // The full picture's size in pixels, and whether it is opaque.
  PictureHeader artwork;
  double duration_seconds = 0;
  int track_number = 0;
  int disc_number = 0;
  MediaType media_type = MediaType::music;
  bool is_cloud = false;

  bool has_artwork() const { return artwork_key != 0; }
};

}  // namespace host::media
