#include "bench/media/small_songs.h"

#include <fmt/core.h>

#include <vector>

#include "host/demo_music/audio_file.h"
#include "host/media/tag_writer.h"

namespace bench {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kSongsInAlbum = 12;
constexpr int kRate = 16'000;

host::media::SongTags tags_of(std::size_t song, std::size_t songs) {
  const std::size_t album = song / kSongsInAlbum;
  host::media::SongTags tags;
  tags.title = fmt::format("Song number {}", song * 7919 % songs);
  tags.artist = fmt::format("Artist {}", album / 3);
  tags.album = fmt::format("Album {}", album);
  tags.genre = "Benchmark";
  tags.track_number = static_cast<int>(song % kSongsInAlbum) + 1;
  return tags;
}

}  // namespace

bool make_small_songs(const fs::path& folder, std::size_t count) {
  fs::create_directories(folder);
  const fs::path first = folder / "first.flac";
  if (!host::media::write_audio(first, std::vector<float>(kRate / 4, 0.1F), kRate)) return false;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t album = i / kSongsInAlbum;
    const fs::path place = folder / fmt::format("artist {}/album {}", album / 3, album);
    fs::create_directories(place);
    const fs::path song = place / fmt::format("{:02} a song.flac", i % kSongsInAlbum + 1);
    fs::copy_file(first, song);
    if (!host::media::write_tags(song, tags_of(i, count), {})) return false;
  }
  fs::remove(first);
  return true;
}

}  // namespace bench
