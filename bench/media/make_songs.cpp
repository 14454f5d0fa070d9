// Makes a folder of small tagged songs: `make_songs FOLDER COUNT`. Twenty a folder, half a second
// of silence each; equal counts give equal songs.

#include <fmt/core.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "bench/support/song_titles.h"
#include "host/demo_music/audio_file.h"
#include "host/media/tag_writer.h"

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kSongsInAlbum = 20;
constexpr std::size_t kSongsOfArtist = 60;
constexpr int kRate = 8000;

bool make_songs(const fs::path& folder, std::size_t count) {
  const fs::path first = folder / "first.ogg";
  fs::create_directories(folder);
  if (!host::media::write_audio(first, std::vector<float>(kRate / 2), kRate)) return false;
  std::mt19937 random{bench::kTitleSeed};
  for (std::size_t i = 0; i < count; ++i) {
    host::media::SongTags tags;
    tags.title = bench::make_title(random);
    tags.artist = fmt::format("Artist {}", i / kSongsOfArtist);
    tags.album = fmt::format("Album {}", i / kSongsInAlbum);
    tags.track_number = static_cast<int>(i % kSongsInAlbum) + 1;
    const fs::path album = folder / tags.artist / tags.album;
    fs::create_directories(album);
    const fs::path song = album / fmt::format("{:02} - {}.ogg", tags.track_number, tags.title);
    fs::copy_file(first, song);
    if (!host::media::write_tags(song, tags, {})) return false;
  }
  fs::remove(first);
  return true;
}

}  // namespace

int main(int count, char** words) {
  const std::size_t songs = count == 3 ? std::strtoul(words[2], nullptr, 10) : 0;
  if (songs == 0) {
    fmt::print(stderr, "Usage: make_songs FOLDER COUNT\n");
    return 2;
  }
  if (make_songs(words[1], songs)) return 0;
  fmt::print(stderr, "The songs cannot be written to {}.\n", words[1]);
  return 1;
}
