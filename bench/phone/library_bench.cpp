#include <cmath>
#include <cstdio>
#include <ctime>

#include "bench/phone/frame_series.h"
#include "bench/phone/large_library.h"
#include "bench/phone/panel_use.h"
#include "platform/MediaPlayer/MPMediaQuery.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UITableView.h"

// Measures a phone with 100,000 songs and 5,000 albums: scrolling, zooming, starting, and the cost
// of a new song and of new preferences.

namespace {

using bench::BenchPhone;
using bench::fling;
using bench::global;
using bench::LargeLibrary;
using bench::offset_of;
using bench::open_page;
using bench::play;
using bench::playable_songs;
using bench::require;
using bench::Series;
using bench::Stopwatch;
using host::screen::TouchPhase;

constexpr const char* kWithLegibility =
    "{ enable = 1; cover = 1; checked = 1; legibility = 1; tint = red; font_tint = green; }";
constexpr double kFrame = 0.016;
constexpr double kPreferencesTime = 0.1;
constexpr int kFlings = 5;
constexpr int kZooms = 3;
constexpr int kTrackChanges = 6;
constexpr int kReloads = 9;
constexpr int kZoomFrames = 60;

double wall_seconds() {
  timespec time;
  clock_gettime(CLOCK_MONOTONIC, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

template <class Work>
double seconds_of(Work work) {
  const objc::AutoreleasePool pool;
  const double start = bench::core_seconds();
  work();
  return bench::core_seconds() - start;
}

void check_rows(BenchPhone& phone) {
  const auto table = global<UITableView>(phone, "tableView");
  const auto songs = global<NSArray>(phone, "songItems");
  int seen = 0;
  for (const auto path : table.indexPathsForVisibleRows().of<NSIndexPath>()) {
    const auto item =
        objc::cast<MPMediaItem>(songs.objectAtIndex(static_cast<NSUInteger>(path.row())));
    const NSString shown = table.cellForRowAtIndexPath(path).textLabel().text();
    require(shown.isEqualToString(
                objc::cast<NSString>(item.valueForProperty(MPMediaItemPropertyTitle))),
            "a row shows another song");
    ++seen;
  }
  require(seen >= 5, "rows are to be seen");
}

void measure_reload(BenchPhone& phone) {
  const auto table = global<UITableView>(phone, "tableView");
  std::vector<double> times;
  for (int i = 0; i < kReloads; ++i) {
    times.push_back(seconds_of([&] { table.reloadData(); }));
    phone.turn();
    check_rows(phone);
  }
  bench::print_ratio("100,000 rows reloaded / 16 ms", bench::summary(times).median, kFrame, 1);
}

void measure_list(BenchPhone& phone) {
  Stopwatch watch(phone);
  Series series;
  open_page(phone, 1);
  measure_reload(phone);
  const double before = offset_of(phone, "tableView").y;
  for (int i = 0; i < kFlings; ++i)
    fling(phone, watch, series, "tableView");
  require(offset_of(phone, "tableView").y - before > kFlings * 1000, "the list does not move");
  check_rows(phone);
  bench::print_frames("flinging 100,000 songs", series);
}

void measure_strip(BenchPhone& phone) {
  Stopwatch watch(phone);
  Series series;
  open_page(phone, 2);
  const double before = offset_of(phone, "albums").y;
  const auto pixels = phone.pixels();
  for (int i = 0; i < kFlings; ++i)
    fling(phone, watch, series, "albums");
  require(offset_of(phone, "albums").y - before > kFlings * 1000, "the strip does not move");
  require(phone.pixels() != pixels, "the strip looks the same");
  bench::print_frames("flinging 5,000 albums", series);
}

int hidden_tiles(BenchPhone& phone) {
  int count = 0;
  for (const auto tile : global<UIView>(phone, "albums").subviews().of<UIView>())
    count += tile.alpha() == 0;
  return count;
}

void tap(BenchPhone& phone, Stopwatch& watch, Series& series, CGPoint point) {
  watch.frame(series, [&] { phone.touch(TouchPhase::Began, point); });
  watch.frame(series, [&] { phone.touch(TouchPhase::Ended, point); });
  watch.frames(series, kZoomFrames);
  phone.settle();
}

void measure_zoom(BenchPhone& phone) {
  constexpr CGPoint kTile{130, 330};
  // Below the zoomed tile, but inside the strip.
  constexpr CGPoint kBeside{187, 465};
  Stopwatch watch(phone);
  Series in, out;
  open_page(phone, 2);
  for (int i = 0; i < kZooms; ++i) {
    require(hidden_tiles(phone) == 0, "tiles are hidden");
    tap(phone, watch, in, kTile);
    phone.run("expect [albums isScrollEnabled] == NO");
    require(hidden_tiles(phone) >= LargeLibrary::kAlbums - 1, "the tiles beside are there");
    tap(phone, watch, out, kBeside);
    phone.run("expect [albums isScrollEnabled] == YES");
  }
  require(hidden_tiles(phone) == 0, "tiles are hidden");
  bench::print_frames("zooming an album in", in);
  bench::print_frames("zooming an album out", out);
}

/// The number of tile parts that have these colours.
int coloured_parts(BenchPhone& phone, UIColor border, UIColor text) {
  const objc::AutoreleasePool pool;
  int count = 0;
  for (const auto tile : global<UIView>(phone, "albums").subviews().of<UIView>()) {
    for (const auto part : tile.subviews().of<UIView>()) {
      if (part.isKindOfClass(UIImageView::cls())) {
        count += CGColorEqualToColor(part.layer().borderColor(), border.CGColor());
      } else if (part.isKindOfClass(UILabel::cls())) {
        count += objc::cast<UILabel>(part).textColor().isEqual(text);
      }
    }
  }
  return count;
}

void measure_track_change(BenchPhone& phone) {
  const objc::Object springboard =
      objc::send<objc::Object>(objc::Object(SpringBoard::cls()), "sharedApplication"_sel);
  const auto songs = playable_songs(phone);
  std::vector<double> preferences, changes;
  Series after;
  Stopwatch watch(phone);
  for (int i = 0; i < kTrackChanges; ++i) {
    preferences.push_back(seconds_of([&] { objc::send<>(springboard, "changesPrefs"_sel); }));
    require(coloured_parts(phone, UIColor::redColor(), UIColor::greenColor()) >=
                2 * LargeLibrary::kAlbums,
            "the tiles have the chosen colours");
    watch.frames(after, 1);
    const NSUInteger song = songs[static_cast<std::size_t>(i) % songs.size()];
    play(phone, song);
    changes.push_back(seconds_of([&] { objc::send<>(springboard, "infoMusic"_sel); }));
    phone.run("expect [title text] == [[songItems objectAtIndex:" + std::to_string(song) +
              "] valueForProperty:@\"title\"]");
    phone.run("expect [songArtist count] >= 1");
    const auto colour = global<UIColor>(phone, "newColor");
    require(coloured_parts(phone, colour, colour) >= 2 * LargeLibrary::kAlbums,
            "the tiles have the colour for the cover");
    watch.frames(after, 1);
  }
  bench::print_ratio("a track change / a frame of 16 ms", bench::summary(changes).median, kFrame,
                     1);
  bench::print_ratio("  the worst of them / 16 ms", bench::summary(changes).worst, kFrame, 1);
  bench::print_ratio("all preferences applied / 0.1 s", bench::summary(preferences).median,
                     kPreferencesTime, 1);
  bench::print_frames("the frame after either", after);
}

}  // namespace

int main() {
  const LargeLibrary library;
  bench::Music music = library.music();
  double filling = 0;
  const auto remember = music.remember;
  music.remember = [&](const std::filesystem::path& index) {
    const double start = wall_seconds();
    remember(index);
    filling = wall_seconds() - start;
  };
  const double start = wall_seconds();
  BenchPhone phone(bench::Pace::kSteppedScreen, kWithLegibility, music);
  phone.run("advance 1");
  std::printf("start with 100,000 songs and 5,000 albums %28.3f s\n",
              wall_seconds() - start - filling);
  phone.settle();
  require(global<NSArray>(phone, "songItems").count() >= LargeLibrary::kSongs, "the songs");
  require(global<UIView>(phone, "albums").subviews().count() >= LargeLibrary::kAlbums, "the tiles");
  play(phone, playable_songs(phone).front());
  phone.run("advance 1.5");
  phone.run("drag 57 332 157 232 0.5");
  phone.run("advance 1.4");
  phone.run("expect isShow == YES");
  open_page(phone, 2);
  measure_track_change(phone);
  measure_list(phone);
  measure_strip(phone);
  measure_zoom(phone);
}
