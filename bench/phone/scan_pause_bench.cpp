#include <algorithm>
#include <chrono>

#include "bench/media/small_songs.h"
#include "bench/phone/bench_phone.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"
#include "host/home_screen/music.h"
#include "host/launcher/throwaway_folder.h"
#include "host/media_player/media_service.h"
#include "platform/MediaPlayer/MPMediaQuery.h"

// Measures how long a scan of 10,000 songs that have all changed keeps the screen of a phone in use
// from its next picture: the longest time of the main thread's processor between two moments at
// which it was free. The phone has painted its first picture before, which is the start's cost.

namespace {

namespace fs = std::filesystem;
using namespace host;
using bench::BenchPhone;
using bench::require;

constexpr std::size_t kSongs = 10'000;
constexpr double kLongestPause = 0.032;
constexpr double kTick = 0.004;
constexpr double kFirstPictures = 1;
constexpr double kLook = 0.25;
constexpr int kMostLooks = 400;

/// Gives every song another time.
void change(const fs::path& music) {
  for (const auto& entry : fs::recursive_directory_iterator(music)) {
    if (entry.is_regular_file())
      fs::last_write_time(entry, entry.last_write_time() + std::chrono::seconds(1));
  }
}

class Pauses {
 public:
  Pauses() {
    RunLoop& loop = RunLoop::main();
    loop.add_timer(loop.now() + kTick, kTick, [this] {
      const double now = bench::core_seconds();
      longest_ = std::max(longest_, now - last_);
      last_ = now;
    });
  }
  double longest() const { return longest_; }

 private:
  double last_ = bench::core_seconds();
  double longest_ = 0;
};

/// The songs that programs of the phone have looked at exist as objects.
void use_all_items() {
  const objc::AutoreleasePool pool;
  const auto query = MPMediaQuery::alloc().init();
  for (const auto item : query.items().of<MPMediaItem>()) {
    for (const NSString property : {MPMediaItemPropertyTitle, MPMediaItemPropertyPersistentID})
      require(item.valueForProperty(property) != nil, "a value");
  }
  query.release();
}

/// Lives until the library has the changes, and for a moment after.
void scan_again(BenchPhone& phone) {
  const std::uint64_t before = launcher::music_library_number();
  media_player::MediaService::current()->reload_library();
  for (int looks = 0; launcher::music_library_number() == before; ++looks) {
    require(looks < kMostLooks, "the scan");
    phone.live(kLook);
  }
  phone.live(kLook);
}

}  // namespace

int main() {
  const launcher::ThrowawayFolder folder;
  const fs::path songs = fs::path(folder.path()) / "music";
  require(bench::make_small_songs(songs, kSongs), "songs");
  BenchPhone phone(bench::Pace::kReal, "{ enable = 1; cover = 1; checked = 1; }", {{songs}, {}});
  phone.live(kFirstPictures);
  require(phone.screen().frames() > 0, "the first picture");
  phone.run("expect [songItems count] == 10000");
  phone.run("expect [[[[MPMediaQuery alloc] init] items] count] == 10000");

  // The extension keeps the first library's items; those of the second go with it.
  change(songs);
  scan_again(phone);
  use_all_items();
  change(songs);
  const Pauses pauses;
  scan_again(phone);
  bench::print_ratio("longest pause while 10,000 are scanned / 32 ms", pauses.longest(),
                     kLongestPause, 1);
}
