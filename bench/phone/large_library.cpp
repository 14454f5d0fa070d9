#include "bench/phone/large_library.h"

#include <fmt/format.h>

#include <cstdlib>
#include <fstream>

#include "host/demo_music/demo_library.h"
#include "host/launcher/installation.h"
#include "host/media/folder_walk.h"
#include "host/media/hash.h"
#include "host/media/picture.h"
#include "host/media/scan.h"
#include "host/media_player/media_options.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using namespace host;

// The number of different pictures; each album still has its own file.
constexpr int kPictures = 40;
constexpr int kCoverSide = 300;

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

void make_files(const fs::path& folder, int albums) {
  const std::vector<Bytes> covers = make_covers(folder);
  for (int album = 0; album < albums; ++album) {
    const fs::path place = folder / fmt::format("{:04}", album);
    fs::create_directory(place);
    const Bytes& cover = covers[static_cast<std::size_t>(album) % covers.size()];
    write_file(place / "cover.jpg", {reinterpret_cast<const char*>(cover.data()), cover.size()});
    for (int song = 0; song < LargeLibrary::kSongsOfAlbum; ++song)
      write_file(place / fmt::format("{:02}.mp3", song), "");
  }
}

media::SongRecord record_of(media::WalkedFile& file, const media::FolderPicture& picture) {
  const fs::path path = file.path;
  const std::string album = path.parent_path().filename();
  media::SongRecord record;
  record.id = media::identifier_from(media::stable_hash(file.path));
  record.path = file.path;
  record.stamp = file.stamp;
  record.folder_picture = picture;
  record.folder_picture.header = {kCoverSide, kCoverSide, true};
  record.tags.title = fmt::format("Song {} of the Number {}", path.stem().string(), album);
  record.tags.artist = "Artist " + album.substr(0, 3);
  record.tags.album = "Album " + album;
  record.tags.duration_seconds = 200;
  return record;
}

}  // namespace

LargeLibrary::LargeLibrary(int albums)
    : albums_(albums), demo_(media_player::default_demo_folder()) {
  std::string name = (fs::temp_directory_path() / "bench-music-XXXXXX").string();
  require(mkdtemp(name.data()) != nullptr, "a folder for the music");
  folder_ = name;
  make_files(folder_, albums_);
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

void LargeLibrary::remember(const fs::path& path) const {
  media::Index index{path};
  media::IndexChanges changes;
  const std::vector<std::string> roots{folder_, demo_};
  const media::WalkVisitor visitor{[&](media::WalkedFolder& found) {
                                     for (media::WalkedFile& file : found.songs)
                                       changes.songs.push_back(record_of(file, found.picture));
                                   },
                                   [](const std::string&, const std::string&) {},
                                   [](const std::string&, const std::string&) {}};
  media::walk_folders({roots.data(), 1}, visitor, {});
  const auto songs = static_cast<std::size_t>(this->songs());
  require(changes.songs.size() == songs && index.apply(changes), "the songs in the index");
  // Only the demo music is read, as usual.
  const auto outcome = media::scan_folders(index, roots, [](const media::ScanProgress&) {});
  require(outcome.progress.read < songs, "the index knows the songs");
  require(outcome.library->tracks().size() == songs + outcome.progress.read, "the whole library");
}

}  // namespace bench
