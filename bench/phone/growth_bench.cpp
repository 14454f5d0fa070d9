#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "bench/phone/large_library.h"
#include "bench/phone/panel_use.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITextField.h"

// Measures how the cost of using the panel grows with the library: `growth_bench [MOST]` starts a
// phone for each of 1,000, 10,000… songs up to MOST (1,000,000), and fits each figure to a power of
// the number of songs. Times are CPU time; of a start, that of all threads.

namespace {

using bench::BenchPhone;
using bench::global;
using bench::LargeLibrary;
using bench::require;
using bench::Series;
using bench::Stopwatch;
using host::screen::TouchPhase;

constexpr int kFewestSongs = 1'000;
constexpr int kMostSongs = 1'000'000;
constexpr int kFlings = 3;
constexpr int kRounds = 5;
constexpr double kSearchOfSong = 12e-9;  // in seconds
// What a fitted exponent may have of noise.
constexpr double kNoise = 0.1;

enum class Growth { kNone, kLinear };

struct Figure {
  const char* name;
  /// The most that is allowed.
  Growth growth;
};

// A finger waits for those that may not grow; a search is the exception.
constexpr Figure kStart{"start with an index", Growth::kLinear};
constexpr Figure kField{"the finger on the field", Growth::kLinear};
constexpr Figure kFewHits{"a key that finds 20", Growth::kLinear};
constexpr Figure kAllHits{"a key that finds all", Growth::kLinear};
constexpr Figure kOpenList{"opening the song list", Growth::kNone};
constexpr Figure kListFrame{"a frame of the song list", Growth::kNone};
constexpr Figure kOpenGrid{"opening the album grid", Growth::kNone};
constexpr Figure kGridFrame{"a frame of the album grid", Growth::kNone};
constexpr Figure kZoom{"an album zooms in: worst frame", Growth::kNone};
constexpr Figure kTrack{"a track change", Growth::kNone};
constexpr Figure kTrackFrame{"  the frame after it", Growth::kNone};
constexpr Figure kPreferences{"all preferences applied", Growth::kLinear};
constexpr Figure kFigures[] = {kStart,    kField,     kFewHits,    kAllHits,
                               kOpenList, kListFrame, kOpenGrid,   kGridFrame,
                               kZoom,     kTrack,     kTrackFrame, kPreferences};

template <class Work>
double core_time(Work work) {
  const objc::AutoreleasePool pool;
  const double start = bench::core_seconds();
  work();
  return bench::core_seconds() - start;
}

template <class Work>
double median_core_time(Work work) {
  std::vector<double> times;
  for (int i = 0; i < kRounds; ++i)
    times.push_back(core_time(work));
  return bench::summary(times).median;
}

void tell(const Figure& figure, double seconds) {
  std::printf("%s\t%.9f\n", figure.name, seconds);
}

objc::Object springboard() {
  return objc::send<objc::Object>(objc::Object(SpringBoard::cls()), "sharedApplication"_sel);
}

void open_panel(BenchPhone& phone) {
  bench::play(phone, bench::playable_songs(phone).front());
  phone.run("advance 1.5");
  phone.run("drag 57 332 157 232 0.5");
  phone.run("advance 2");
  phone.run("expect isShow == YES");
}

/// The CPU time until the page is on the screen.
double open_and_draw(BenchPhone& phone, int page) {
  bench::open_page(phone, 0);
  phone.settle();
  const auto before = phone.pixels();
  const double seconds = core_time([&] {
    phone.run("print [container setContentOffset:{" + std::to_string(page * 375) + ", 0}]");
    phone.frame();
  });
  require(phone.pixels() != before, "the page is not seen");
  phone.settle();
  return seconds;
}

double frame_of_flings(BenchPhone& phone, const char* view) {
  Stopwatch watch(phone);
  Series series;
  const double before = bench::offset_of(phone, view).y;
  for (int i = 0; i < kFlings; ++i)
    bench::fling(phone, watch, series, view);
  require(bench::offset_of(phone, view).y - before > 300, "the list does not move");
  return bench::summary(series.frames).median;
}

double worst_of_zoom(BenchPhone& phone) {
  constexpr CGPoint kTile{130, 330};
  phone.run("print [albums setContentOffset:{0, 0}]");
  phone.run("advance 1");
  phone.settle();
  Stopwatch watch(phone);
  Series series;
  watch.frame(series, [&] { phone.touch(TouchPhase::Began, kTile); });
  watch.frame(series, [&] { phone.touch(TouchPhase::Ended, kTile); });
  watch.frames(series, 60);
  phone.run("expect [albums isScrollEnabled] == NO");
  return bench::summary(series.frames).worst;
}

void measure_search(BenchPhone& phone, NSUInteger songs) {
  const auto field = global<UITextField>(phone, "searchBar");
  const auto table = global<UITableView>(phone, "tableView");
  const auto type = [&](NSString text) {
    field.setText(text);
    objc::send<>(springboard(), "textDidChange:"_sel, field);
    return static_cast<NSUInteger>(table.numberOfRowsInSection(0));
  };
  tell(kField,
       core_time([&] { objc::send<>(springboard(), "textFieldDidBeginEditing:"_sel, field); }));
  NSUInteger found = 0;
  tell(kFewHits, median_core_time([&] { found = type("number 0007"_ns); }));
  require(found == LargeLibrary::kSongsOfAlbum, "the search finds an album's songs");
  tell(kAllHits, median_core_time([&] { found = type("song"_ns); }));
  require(found >= songs, "the search finds all songs");
  type(""_ns);
}

void measure_track_change(BenchPhone& phone) {
  const auto songs = bench::playable_songs(phone);
  std::vector<double> changes, frames;
  Stopwatch watch(phone);
  for (std::size_t i = 1; i <= kRounds; ++i) {
    const NSUInteger song = songs[i % songs.size()];
    bench::play(phone, song);
    changes.push_back(core_time([] { objc::send<>(springboard(), "infoMusic"_sel); }));
    phone.run("expect [title text] == [[songItems objectAtIndex:" + std::to_string(song) +
              "] valueForProperty:@\"title\"]");
    Series after;
    watch.frames(after, 1);
    require(!after.frames.empty(), "the change is not seen");
    frames.push_back(after.frames.front());
  }
  tell(kTrack, bench::summary(changes).median);
  tell(kTrackFrame, bench::summary(frames).median);
}

/// Uses a phone with so many songs, and writes a line for each figure.
void measure(int songs) {
  const LargeLibrary library({songs / LargeLibrary::kSongsOfAlbum, LargeLibrary::kSongsOfAlbum});
  bench::Music music = library.music();
  double filling = 0;
  const auto remember = music.remember;
  music.remember = [&](const std::filesystem::path& index) {
    const double start = bench::process_seconds();
    remember(index);
    filling = bench::process_seconds() - start;
  };
  const double start = bench::process_seconds();
  BenchPhone phone(bench::Pace::kSteppedScreen,
                   "{ enable = 1; cover = 1; checked = 1; legibility = 1; }", music);
  phone.run("advance 1");
  tell(kStart, bench::process_seconds() - start - filling);
  phone.settle();
  const NSUInteger count = global<NSArray>(phone, "songItems").count();
  require(count >= static_cast<NSUInteger>(songs), "the songs are in the list");
  open_panel(phone);
  tell(kOpenList, open_and_draw(phone, 1));
  tell(kListFrame, frame_of_flings(phone, "tableView"));
  measure_search(phone, static_cast<NSUInteger>(songs));
  tell(kOpenGrid, open_and_draw(phone, 2));
  tell(kGridFrame, frame_of_flings(phone, "albums"));
  measure_track_change(phone);
  tell(kPreferences, median_core_time([] { objc::send<>(springboard(), "changesPrefs"_sel); }));
  phone.settle();
  tell(kZoom, worst_of_zoom(phone));
}

struct Point {
  double songs;
  double seconds;
};
using Points = std::map<std::string, std::vector<Point>>;

/// Runs this program for so many songs.
void collect(const char* program, int songs, Points& points) {
  const std::string command = std::string(program) + " --songs " + std::to_string(songs);
  FILE* const lines = popen(command.c_str(), "r");
  require(lines != nullptr, command);
  char line[256];
  while (std::fgets(line, sizeof line, lines)) {
    char* const tab = std::strchr(line, '\t');
    if (tab)
      points[std::string(line, tab)].push_back({static_cast<double>(songs), std::atof(tab + 1)});
  }
  require(pclose(lines) == 0, command);
}

/// The exponent of the power of the number of songs that fits best: the slope in logarithms.
double exponent(const std::vector<Point>& points) {
  double x = 0, y = 0, xx = 0, xy = 0;
  for (const Point& point : points) {
    const double log_songs = std::log(point.songs);
    const double log_seconds = std::log(point.seconds);
    x += log_songs;
    y += log_seconds;
    xx += log_songs * log_songs;
    xy += log_songs * log_seconds;
  }
  const auto count = static_cast<double>(points.size());
  return (count * xy - x * y) / (count * xx - x * x);
}

const char* verdict(const Figure& figure, double grown) {
  if (grown > 1 + kNoise) return "   GROWS FASTER THAN THE LIBRARY";
  return figure.growth == Growth::kNone && grown > kNoise ? "   GROWS" : "";
}

void print(const Figure& figure, const std::vector<Point>& points, std::size_t sizes) {
  require(points.size() == sizes, figure.name);
  std::printf("%-32s", figure.name);
  for (const Point& point : points)
    std::printf(" %11.3f", point.seconds * 1e3);
  const double grown = exponent(points);
  std::printf(" %9.2f%s\n", grown, verdict(figure, grown));
}

void print_search_of_song(const std::vector<Point>& points) {
  const double of_song = points.back().seconds / points.back().songs;
  std::printf("a key for each of %.0f songs: %.1f ns   (aim: at most %g)%s\n", points.back().songs,
              of_song * 1e9, kSearchOfSong * 1e9, of_song <= kSearchOfSong ? "" : "   MISSED");
}

int number(const char* text) {
  int value = 0;
  std::from_chars(text, text + std::strlen(text), value);
  return value;
}

}  // namespace

int main(int count, char** arguments) {
  if (count == 3 && std::strcmp(arguments[1], "--songs") == 0) {
    measure(number(arguments[2]));
    return 0;
  }
  const int most = count > 1 ? number(arguments[1]) : kMostSongs;
  require(most >= 10 * kFewestSongs, "two sizes are needed for a growth");
  Points points;
  std::size_t sizes = 0;
  std::printf("%-32s", "milliseconds at so many songs");
  for (int songs = kFewestSongs; songs <= most; songs *= 10, ++sizes) {
    collect(arguments[0], songs, points);
    std::printf(" %11d", songs);
  }
  std::printf(" %9s\n", "exponent");
  for (const Figure& figure : kFigures)
    print(figure, points[figure.name], sizes);
  print_search_of_song(points[kFewHits.name]);
  print_search_of_song(points[kAllHits.name]);
}
