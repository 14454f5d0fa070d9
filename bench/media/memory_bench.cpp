// How much more memory a library of 100,000 songs and 5,000 covers keeps in use than an empty one,
// after everything that a panel asks of it: every item in an array, every title searched, every
// album's and every song's cover made at the sizes of the screen and drawn once.

#include <fmt/core.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unordered_map>
#include <vector>

#include "bench/support/ratio.h"
#include "host/foundation/exports.h"
#include "host/media/picture.h"
#include "host/media_player/artwork_images.h"
#include "host/media_player/exports.h"
#include "host/media_player/item_store.h"
#include "host/quartzcore/compositor.h"
#include "host/quartzcore/exports.h"
#include "host/quartzcore/layer_service.h"
#include "host/runtime/run_loop.h"
#include "host/uikit/drawing/exports.h"
#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSArray.h"
#include "platform/QuartzCore/CALayer.h"

namespace {

namespace fs = std::filesystem;
using host::media::Library;
using host::media::SongRecord;

constexpr std::size_t kSongs = 100'000;
constexpr std::size_t kCovers = 5'000;
constexpr double kMostMegabytes = 150;
constexpr int kScale = 2;
// A tile of the strip asks for 120 points and shows them at 156; a row of the list asks for 30.
constexpr int kTilePixels = 120 * kScale;
constexpr int kTilePlace = 156 * kScale;
constexpr int kRowPixels = 30 * kScale;

void require(bool is_true, const char* what) {
  if (is_true) return;
  fmt::print(stderr, "wrong result: {}\n", what);
  std::exit(1);
}

double resident_megabytes() {
  long all = 0;
  long resident = 0;
  std::FILE* file = std::fopen("/proc/self/statm", "r");
  require(file && std::fscanf(file, "%ld %ld", &all, &resident) == 2, "/proc/self/statm");
  std::fclose(file);
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// Real JPEG files, each with a colour of its own.
void make_covers(const fs::path& folder) {
  fs::create_directories(folder);
  const std::string drawing = folder / "one.ppm";
  for (std::size_t i = 0; i < kCovers; ++i) {
    constexpr int side = 300;
    std::FILE* file = std::fopen(drawing.c_str(), "wb");
    std::fprintf(file, "P6 %d %d 255\n", side, side);
    std::vector<unsigned char> pixels(3 * side * side, static_cast<unsigned char>(i * 7));
    for (std::size_t at = 0; at < pixels.size(); at += 3)
      pixels[at] = static_cast<unsigned char>(at / 900 + i);
    std::fwrite(pixels.data(), 1, pixels.size(), file);
    std::fclose(file);
    const auto jpeg = host::media::jpeg_from_file(drawing, side);
    require(!jpeg.empty(), "a cover");
    std::FILE* cover = std::fopen((folder / fmt::format("{}.jpg", i)).c_str(), "wb");
    std::fwrite(jpeg.data(), 1, jpeg.size(), cover);
    std::fclose(cover);
  }
}

std::shared_ptr<const Library> make_library(const fs::path& covers) {
  std::vector<SongRecord> records(kSongs);
  for (std::size_t i = 0; i < kSongs; ++i) {
    const std::size_t album = i % kCovers;
    SongRecord& record = records[i];
    record.id = i + 1;
    record.path = fmt::format("/home/somebody/Music/Artist {}/Album {}/{:02} Song.flac", album / 3,
                              album, i / kCovers + 1);
    record.folder_picture = {covers / fmt::format("{}.jpg", album), album + 1, {300, 300, true}};
    record.tags.title = fmt::format("A Song of the Number {}", i * 7919 % kSongs);
    record.tags.artist = fmt::format("Artist {}", album / 3);
    record.tags.album = fmt::format("Album {}", album);
    record.tags.genre = "Benchmark";
  }
  return Library::build(records);
}

void search_all(NSArray songs) {
  const objc::AutoreleasePool pool;
  std::size_t found = 0;
  for (const MPMediaItem song : songs.of<MPMediaItem>()) {
    const auto title = objc::cast<NSString>(song.valueForProperty(MPMediaItemPropertyTitle));
    if (title.lowercaseString().rangeOfString("number"_ns).location != NSNotFound) ++found;
    song.valueForProperty(MPMediaItemPropertyArtist);
    song.valueForProperty(MPMediaItemPropertyAlbumTitle);
    song.valueForProperty(MPMediaItemPropertyPersistentID);
    song.valueForProperty(MPMediaItemPropertyAlbumPersistentID);
  }
  require(found == kSongs, "a search that finds every song");
}

void draw_all(const Library& library, host::media_player::ArtworkImages& images, int pixels,
              int place) {
  host::quartzcore::Compositor screen{place, place, 1};
  std::unordered_map<std::uint64_t, bool> drawn;
  const auto layer = objc::Ref<CALayer>::retain(CALayer::layer());
  layer->setFrame({0, 0, static_cast<double>(place), static_cast<double>(place)});
  for (const auto& track : library.tracks()) {
    if (!drawn.emplace(track.artwork_key, true).second) continue;
    const objc::AutoreleasePool pool;
    layer->setContents(images.image(track, pixels, kScale).CGImage());
    const CALayer roots[] = {layer.get()};
    require(!screen.render(roots, 0).empty(), "a cover that is drawn");
  }
  require(drawn.size() == kCovers, "the covers");
  fmt::print("  {:5} covers of {} pixels drawn  {:8.1f} MB\n", drawn.size(), pixels,
             resident_megabytes());
}

// In a process of its own, so that what drawing them takes is not counted on either side.
void make_covers_apart(const fs::path& folder) {
  const pid_t child = ::fork();
  if (child == 0) {
    make_covers(folder);
    ::_exit(0);
  }
  int status = 1;
  require(::waitpid(child, &status, 0) == child && status == 0, "the covers' files");
}

void measure(const fs::path& folder) {
  make_covers_apart(folder);
  host::SteppedClock clock;
  host::RunLoop loop{clock};
  host::RunLoop::set_main(&loop);
  const objc::AutoreleasePool pool;
  host::foundation::export_foundation();
  host::quartzcore::export_quartzcore();
  host::uikit::export_drawing();
  host::media_player::export_media_player();
  const host::quartzcore::LayerService service{loop};
  host::media_player::ArtworkImages images{host::media_player::CoverStore::Pace::Waits};
  const double before = resident_megabytes();
  fmt::print("  an empty library              {:8.1f} MB\n", before);
  const auto library = make_library(folder);
  fmt::print("  a library                     {:8.1f} MB\n", resident_megabytes());
  const auto store = std::make_shared<host::media_player::ItemStore>(library);
  const NSMutableArray items =
      NSMutableArray::arrayWithArray(host::media_player::ItemList::make(store).autorelease());
  fmt::print("  all items in an array         {:8.1f} MB\n", resident_megabytes());
  search_all(items);
  fmt::print("  all texts searched            {:8.1f} MB\n", resident_megabytes());
  draw_all(*library, images, kTilePixels, kTilePlace);
  draw_all(*library, images, kRowPixels, kRowPixels);
  require(images.decode_count() == 2 * kCovers, "every cover decoded once at each size");
  const double more = resident_megabytes() - before;
  fmt::print(
      "100,000 songs and 5,000 covers: {:.1f} MB above the empty library (aim: at most {})"
      "{}\n",
      more, kMostMegabytes, more <= kMostMegabytes ? "" : "   MISSED");
}

}  // namespace

int main() {
  std::string name = (fs::temp_directory_path() / "memory-bench-XXXXXX").string();
  if (!::mkdtemp(name.data())) return 1;
  measure(name);
  fs::remove_all(name);
  return 0;
}
