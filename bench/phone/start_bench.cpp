#include <cstdio>
#include <optional>

#include "bench/phone/in_a_process.h"
#include "bench/phone/large_library.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"
#include "platform/UIKit/UIView.h"

// Measures starts with libraries of several shapes, each with an index from an earlier start and in
// a process of its own, beside a start with the demo music alone. What is compared is the main
// thread's CPU time until the panel is made: pictures in the background are not waited for.

namespace {

using bench::BenchPhone;
using bench::Covers;
using bench::LargeLibrary;
using bench::LibraryShape;
using bench::require;

constexpr const char* kPreferences = "{ enable = 1; cover = 1; checked = 1; }";
constexpr int kRounds = 3;
constexpr double kMostOfDemo = 1.5;
constexpr double kSecondsForSong = 10e-6;
constexpr int kDemoSongs = 40;

double seconds_to_start(const bench::Music& music, const LibraryShape& shape) {
  const double before = bench::core_seconds();
  BenchPhone phone(bench::Pace::kSteppedScreen, kPreferences, music);
  phone.run("advance 1");
  const double seconds = bench::core_seconds() - before;
  const auto songs = objc::cast<NSArray>(phone.global("songItems")).count();
  require(songs >= static_cast<std::size_t>(shape.songs() + kDemoSongs), "the songs");
  const auto tiles = objc::cast<UIView>(phone.global("albums")).subviews().count();
  require(tiles > static_cast<std::size_t>(shape.albums), "the tiles");
  require(phone.screen().frames() > 0, "a picture");
  return seconds;
}

struct Library {
  const char* name;
  LibraryShape shape;
};

void measure(const Library& library) {
  const LargeLibrary files(library.shape);
  const bench::Music music = bench::filled_apart(files.music());
  const bench::Music demo = bench::filled_apart(files.demo());
  std::vector<double> starts;
  std::vector<double> demo_starts;
  for (int round = 0; round < kRounds; ++round) {
    demo_starts.push_back(bench::number_from_a_process([&] { return seconds_to_start(demo, {}); }));
    starts.push_back(
        bench::number_from_a_process([&] { return seconds_to_start(music, library.shape); }));
  }
  const double allowed =
      kMostOfDemo * bench::summary(demo_starts).median + kSecondsForSong * library.shape.songs();
  bench::print_ratio(library.name, bench::summary(starts).median, allowed, 1);
}

}  // namespace

int main() {
  std::printf("starts / 1.5 of the demo library's and 10 us a song, of the main thread\n");
  for (const Library& library : {
           Library{"  10,000 songs in 500 albums without covers", {500, 20, Covers::kNone}},
           Library{"  10,000 songs in 5,000 albums, half of them bare",
                   {5000, 2, Covers::kEverySecond}},
           Library{"  1,000 songs with a cover of 10 MB in each",
                   {1000, 1, Covers::kHugeInEachSong}},
           Library{"  10,000 songs in 500 albums with covers", {500, 20, Covers::kEach}},
       })
    measure(library);
}
