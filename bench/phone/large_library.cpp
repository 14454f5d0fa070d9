#include "bench/phone/large_library.h"

#include <fmt/format.h>

#include <cstdlib>
#include <fstream>
#include <random>

#include "host/demo_music/audio_file.h"
#include "host/demo_music/demo_library.h"
#include "host/launcher/installation.h"
#include "host/media/folder_walk.h"
#include "host/media/hash.h"
#include "host/media/picture.h"
#include "host/media/scan.h"
#include "host/media/tag_writer.h"
#include "host/media_player/media_options.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using namespace host;

// The number of different pictures; each album still has its own file.
constexpr int kPictures = 40;
constexpr int kCoverSide = 300;
constexpr int kHugeCoverSide = 3600;
constexpr std::size_t kHugeCoverBytes = 10'000'000;
constexpr std::size_t kMostDemoSongs = 100;

using Bytes = std::vector<std::uint8_t>;

void write_file(const fs::path& file, std::string_view bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

/// Makes a cover with stripes in its own light and dark colours.
Bytes make_cover(const fs::path& scratch, int number) {
  std::string drawing = fmt::format("P6 {} {} 255\n", kCoverSide, kCoverSide);
  for (int y = 0; y < kCoverSide; ++y) {
    for (int x = 0; x < kCoverSide; ++x) {
      const int stripe = (x + y * (number % 5)) / 20 % 2;
      for (const int part : {37, 101, 53})
        drawing += static_cast<char>((number * part + stripe * 60) % 256);
    }
  }
  write_file(scratch, drawing);
  return media::jpeg_from_file(scratch, kCoverSide);
}

std::vector<Bytes> make_covers(const fs::path& folder) {
  const fs::path scratch = folder / "drawing.ppm";
  std::vector<Bytes> covers;
  for (int i = 0; i < kPictures; ++i) {
    covers.push_back(make_cover(scratch, i));
    require(!covers.back().empty(), "a cover");
  }
  fs::remove(scratch);
  return covers;
}

/// Makes a song with a cover of some 10 MB: noise, which no coder makes small.
void make_heavy_song(const fs::path& song) {
  const fs::path scratch = song.parent_path() / "noise.ppm";
  std::string drawing = fmt::format("P6 {} {} 255\n", kHugeCoverSide, kHugeCoverSide);
  std::minstd_rand noise;
  for (int i = 0; i < kHugeCoverSide * kHugeCoverSide * 3; ++i)
    drawing += static_cast<char>(noise() >> 8);
  write_file(scratch, drawing);
  const Bytes cover = media::jpeg_from_file(scratch, kHugeCoverSide);
  require(cover.size() > kHugeCoverBytes, "a huge cover");
  fs::remove(scratch);
  constexpr int kRate = 8000;
  require(media::write_audio(song, std::vector<float>(kRate / 4), kRate) &&
              media::write_tags(song, {}, cover),
          "a song with a huge cover");
}

bool has_cover_beside(const LibraryShape& shape, int album) {
  return shape.covers == Covers::kEach || (shape.covers == Covers::kEverySecond && album % 2 == 0);
}

void make_files(const fs::path& folder, const LibraryShape& shape) {
  const std::vector<Bytes> covers = make_covers(folder);
  const fs::path heavy_song = folder / ".heavy.flac";
  const bool is_heavy = shape.covers == Covers::kHugeInEachSong;
  if (is_heavy) make_heavy_song(heavy_song);
  for (int album = 0; album < shape.albums; ++album) {
    const fs::path place = folder / fmt::format("{:04}", album);
    fs::create_directory(place);
    const Bytes& cover = covers[static_cast<std::size_t>(album) % covers.size()];
    if (has_cover_beside(shape, album))
      write_file(place / "cover.jpg", {reinterpret_cast<const char*>(cover.data()), cover.size()});
    for (int song = 0; song < shape.songs_of_album; ++song) {
      // Links, since thousands of such songs would fill the disk.
      if (is_heavy) {
        fs::create_hard_link(heavy_song, place / fmt::format("{:02}.flac", song));
      } else {
        write_file(place / fmt::format("{:02}.mp3", song), "");
      }
    }
  }
}

media::SongRecord record_of(media::WalkedFile& file, const media::FolderPicture& picture,
                            Covers covers) {
  const fs::path path = file.path;
  const std::string album = path.parent_path().filename();
  media::SongRecord record;
  record.id = media::identifier_from(media::stable_hash(file.path));
  record.path = file.path;
  record.stamp = file.stamp;
  record.folder_picture = picture;
  if (picture.key) record.folder_picture.header = {kCoverSide, kCoverSide, true};
  record.tags.title = fmt::format("Song {} of the Number {}", path.stem().string(), album);
  record.tags.artist = "Artist " + album.substr(0, 3);
  record.tags.album = "Album " + album;
  record.tags.duration_seconds = 200;
  if (covers == Covers::kHugeInEachSong) {
    record.tags.own_artwork = record.id;
    record.tags.own_picture = {kHugeCoverSide, kHugeCoverSide, true};
  }
  return record;
}

/// Scans folders of which only the demo music is read, as usual.
void scan_demo(media::Index& index, const std::vector<std::string>& roots, std::size_t known) {
  const auto outcome = media::scan_folders(index, roots, [](const media::ScanProgress&) {});
  require(outcome.progress.read > 0 && outcome.progress.read < kMostDemoSongs,
          "the index knows the songs");
  require(outcome.library->tracks().size() == known + outcome.progress.read, "the whole library");
}

}  // namespace

LargeLibrary::LargeLibrary(const LibraryShape& shape)
    : shape_(shape), demo_(media_player::default_demo_folder()) {
  std::string name = (fs::temp_directory_path() / "bench-music-XXXXXX").string();
  require(mkdtemp(name.data()) != nullptr, "a folder for the music");
  folder_ = name;
  make_files(folder_, shape);
  if (fs::exists(demo_)) return;
  const auto failure = media::make_demo_library(demo_, launcher::find_installation().covers,
                                                [](media::DemoProgress) {});
  require(!failure, failure.value_or(""));
}

LargeLibrary::~LargeLibrary() {
  fs::remove_all(folder_);
}

Music LargeLibrary::music() const {
  return {{folder_, demo_}, [this](const fs::path& index) { remember(index); }};
}

Music LargeLibrary::demo() const {
  const fs::path folder = demo_;
  return {{folder}, [folder](const fs::path& path) {
            media::Index index{path};
            scan_demo(index, {folder}, 0);
          }};
}

void LargeLibrary::remember(const fs::path& path) const {
  media::Index index{path};
  media::IndexChanges changes;
  const std::vector<std::string> roots{folder_, demo_};
  const media::WalkVisitor visitor{
      [&](media::WalkedFolder& found) {
        for (media::WalkedFile& file : found.songs)
          changes.songs.push_back(record_of(file, found.picture, shape_.covers));
      },
      [](const std::string&, const std::string&) {}, [](const std::string&, const std::string&) {}};
  media::walk_folders({roots.data(), 1}, visitor, {});
  const auto songs = static_cast<std::size_t>(shape_.songs());
  require(changes.songs.size() == songs && index.apply(changes), "the songs in the index");
  scan_demo(index, roots, songs);
}

}  // namespace bench
