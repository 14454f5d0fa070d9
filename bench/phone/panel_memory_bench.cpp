#include <unistd.h>

#include <cstdio>

#include "bench/phone/in_a_process.h"
#include "bench/phone/large_library.h"
#include "host/launcher/throwaway_folder.h"
#include "platform/UIKit/UIScrollView.h"

// Measures how much more memory a phone with 100,000 songs and 5,000 covers keeps than one with an
// empty library, after opening the panel, showing every row of the list and every tile of the
// strip, and searching every title. Each phone is a separate process.

namespace {

using bench::BenchPhone;
using bench::LargeLibrary;
using bench::require;

constexpr double kMostMegabytes = 150;
constexpr const char* kPreferences = "{ enable = 1; cover = 1; checked = 1; }";
constexpr double kPageWidth = 375;
// Covers are decoded in the background, so the benchmark waits for them at intervals.
constexpr int kScreensBetweenWaits = 8;
constexpr useconds_t kWait = 2000;

double resident_megabytes() {
  long all = 0;
  long resident = 0;
  FILE* file = std::fopen("/proc/self/statm", "r");
  require(file && std::fscanf(file, "%ld %ld", &all, &resident) == 2, "/proc/self/statm");
  std::fclose(file);
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

/// Scrolls through the whole contents of a scroll view of the panel. Returns the number of screens.
int scroll_past_all(BenchPhone& phone, const char* name) {
  const auto view = objc::cast<UIScrollView>(phone.global(name));
  const double screen = view.bounds().size.height;
  int screens = 0;
  for (double y = 0; y < view.contentSize().height; y += screen) {
    const objc::AutoreleasePool pool;
    view.setContentOffset({0, y});
    phone.frame();
    if (++screens % kScreensBetweenWaits == 0) usleep(kWait);
  }
  return screens;
}

void show_page(BenchPhone& phone, int page) {
  const auto pages = objc::cast<UIScrollView>(phone.global("container"));
  pages.setContentOffset({page * kPageWidth, 0});
  phone.run("advance 1");
}

double megabytes_of(const bench::Music& music, std::size_t songs) {
  BenchPhone phone(bench::Pace::kSteppedScreen, kPreferences, music);
  phone.run("advance 1");
  phone.run("drag 57 332 157 232 0.5");
  phone.run("advance 1.4");
  phone.run("expect isShow == YES");
  require(objc::cast<NSArray>(phone.global("songItems")).count() >= songs, "the songs");
  show_page(phone, 1);
  phone.run("print [searchBar setText:@\"a\"]");
  phone.run("print [Spring textDidChange:searchBar]");
  phone.run("print [searchBar setText:@\"\"]");
  phone.run("print [Spring textDidChange:searchBar]");
  const int rows = scroll_past_all(phone, "tableView");
  show_page(phone, 2);
  const int tiles = scroll_past_all(phone, "albums");
  require(songs == 0 || (rows > 1000 && tiles > 100), "the list and the strip are long");
  const double megabytes = resident_megabytes();
  std::printf("  %zu songs, %d screens of rows and %d of tiles: %.1f MB\n", songs, rows, tiles,
              megabytes);
  return megabytes;
}

}  // namespace

int main() {
  const LargeLibrary library;
  const bench::Music large = bench::filled_apart(library.music());
  const host::launcher::ThrowawayFolder nothing;
  const double without = bench::number_from_a_process([&] {
    return megabytes_of({{nothing.path()}, {}}, 0);
  });
  const double more =
      bench::number_from_a_process([&] { return megabytes_of(large, LargeLibrary::kSongs); }) -
      without;
  std::printf(
      "the panel with 100,000 songs and 5,000 covers: %.1f MB above the empty library "
      "(aim: at most %g)%s\n",
      more, kMostMegabytes, more <= kMostMegabytes ? "" : "   MISSED");
}
