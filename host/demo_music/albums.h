#pragma once

#include <array>
#include <span>

namespace host::media {

// The style of an album's songs; each song varies key, tempo and patterns.
enum class DemoMood { glassy, nocturnal, playful, slow, bright, warm, electric, plain };

enum class CoverPlace { inside_the_songs, in_the_folder };

struct DemoAlbum {
  const char* title;
  const char* artist;
  const char* genre;
  const char* suffix;  // Of its files; determines their format.
  DemoMood mood;
  CoverPlace cover_place;
  int cover_number;  // Its picture is `cover-<number>.png`.
  std::span<const char* const> songs;
};

std::span<const DemoAlbum> demo_albums();
int demo_song_count();

}  // namespace host::media
