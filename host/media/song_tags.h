#pragma once

#include <cstdint>
#include <string>

#include "host/media/picture_header.h"

namespace host::media {

// The tags of one file, already repaired: every text is short, valid UTF-8.
struct SongTags {
  std::string title;
  std::string artist;
  std::string album_artist;
  std::string album;
  std::string genre;
  std::string composer;
  int track_number = 0;
  int disc_number = 0;
  double duration_seconds = 0;
  bool is_compilation = false;
  bool is_cloud = false;
  // Identifies the song's own picture by its content; 0 when no picture can be shown.
  std::uint64_t own_artwork = 0;
  PictureHeader own_picture;
  // The file of the picture; empty when it is inside the song.
  std::string own_picture_path;

  bool operator==(const SongTags&) const = default;
};

}  // namespace host::media
