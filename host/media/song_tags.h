#pragma once

#include <cstdint>
#include <string>

namespace host::media {

// What one file says about itself, already repaired: every text is short, valid UTF-8.
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
  // Names the picture inside the file by its content; 0 when there is none.
  std::uint64_t embedded_artwork = 0;

  bool operator==(const SongTags&) const = default;
};

}  // namespace host::media
