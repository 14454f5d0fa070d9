#include <algorithm>
#include <chrono>

#include "bench/media/small_songs.h"
#include "bench/phone/bench_phone.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"
#include "host/home_screen/music.h"
#include "host/launcher/throwaway_folder.h"
#include "host/media/scan.h"

// Measures how long a scan of 10,000 songs that have all changed keeps the screen of a phone in use
// from its next picture: the longest time of the main thread's processor between two moments at
// which it was free.

namespace {

namespace fs = std::filesystem;
using namespace host;
using bench::BenchPhone;
using bench::require;

constexpr std::size_t kSongs = 10'000;
constexpr double kLongestPause = 0.032;
constexpr double kTick = 0.004;
constexpr double kLook = 0.25;
constexpr int kMostLooks = 400;

/// Scans the songs into the index, and then changes the time of each.
void remember_before_changes(const fs::path& index_file, const fs::path& music) {
  media::Index index{index_file};
  const std::vector<std::string> roots{music};
  const auto outcome = media::scan_folders(index, roots, [](const media::ScanProgress&) {});
  require(outcome.progress.read == kSongs, "the songs");
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
  void begin() { last_ = bench::core_seconds(); }
  double longest() const { return longest_; }

 private:
  double last_ = 0;
  double longest_ = 0;
};

}  // namespace

int main() {
  const launcher::ThrowawayFolder folder;
  const fs::path songs = fs::path(folder.path()) / "music";
  require(bench::make_small_songs(songs, kSongs), "songs");
  const bench::Music music{{songs},
                           [&](const fs::path& index) { remember_before_changes(index, songs); }};
  BenchPhone phone(bench::Pace::kReal, "{ enable = 1; cover = 1; checked = 1; }", music);
  const std::uint64_t before = launcher::music_library_number();
  Pauses pauses;
  int looks = 0;
  while (launcher::music_library_number() == before && ++looks < kMostLooks) {
    pauses.begin();
    phone.live(kLook);
  }
  require(launcher::music_library_number() != before, "the scan");
  phone.run("expect [songItems count] == 10000");
  bench::print_ratio("longest pause while 10,000 are scanned / 32 ms", pauses.longest(),
                     kLongestPause, 1);
}
