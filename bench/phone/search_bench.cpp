// Measures the search field of the open panel: the finger on it, the frames in which the titles are
// read, and keys until the table shows the results. A key is compared with a case-folding `memmem`
// over the same titles, with SQLite's `LIKE`, and with the platform's comparison of every title,
// which is what a search without an index would do. All must find the same songs.
//
// `--figures` prints a line a figure: the number of songs, what was done, seconds, and the hits.

#include <fmt/core.h>

#include <algorithm>
#include <cstring>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "bench/phone/bench_phone.h"
#include "bench/support/core_time.h"
#include "bench/support/ratio.h"
#include "bench/support/song_titles.h"
#include "host/media/database.h"
#include "host/media/library.h"
#include "host/media_player/item_store.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITextField.h"

namespace {

using bench::BenchPhone;
using bench::make_title;
using host::media::Database;
using host::media::Library;
using host::media::SongRecord;

constexpr double kMostToMemmem = 2;
constexpr double kMostToLike = 0.2;
constexpr double kMostToPlatform = 0.5;
constexpr double kQuarterFrame = 1 / 240.0;
constexpr double kMostASong = 12e-9;

std::shared_ptr<const Library> make_library(std::size_t songs) {
  std::mt19937 random{bench::kTitleSeed};
  std::vector<SongRecord> records(songs);
  for (std::size_t i = 0; i < songs; ++i) {
    records[i].id = i + 1;
    records[i].path = fmt::format("/music/{}.flac", i);
    records[i].tags.title = make_title(random);
    records[i].tags.artist = fmt::format("Artist {}", i / 60);
    records[i].tags.album = fmt::format("Album {}", i / 20);
  }
  return Library::build(records);
}

std::size_t search_bytes(const Library& library, const std::string& wanted) {
  std::size_t hits = 0;
  std::string folded;
  for (const auto& track : library.tracks()) {
    folded.assign(track.title);
    for (char& letter : folded) {
      if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
    }
    if (::memmem(folded.data(), folded.size(), wanted.data(), wanted.size())) ++hits;
  }
  return hits;
}

void fill(Database& database, const Library& library) {
  database.execute("CREATE TABLE songs (id INTEGER PRIMARY KEY, title TEXT); BEGIN");
  auto insert = database.prepare("INSERT INTO songs VALUES (?, ?)");
  for (const auto& track : library.tracks())
    insert.bind(1, static_cast<std::int64_t>(track.id)).bind(2, track.title).run();
  database.execute("COMMIT");
}

std::size_t search_table(Database& database, const std::string& wanted) {
  const std::string pattern = "%" + wanted + "%";
  auto select = database.prepare("SELECT id FROM songs WHERE title LIKE ?");
  select.bind(1, std::string_view{pattern});
  std::size_t hits = 0;
  while (select.step() == host::media::DatabaseStatus::row)
    ++hits;
  return hits;
}

// Replaces the songs in the panel's list.
class SongList {
 public:
  SongList(BenchPhone& phone, const std::shared_ptr<const Library>& library)
      : phone_(phone),
        table_(objc::cast<UITableView>(phone.global("tableView"))),
        field_(objc::cast<UITextField>(phone.global("searchBar"))) {
    const auto store = std::make_shared<host::media_player::ItemStore>(library);
    const auto songs = objc::cast<NSMutableArray>(phone.global("songItems"));
    songs.removeAllObjects();
    // Lets the search forget the songs before.
    begin();
    end();
    songs.addObjectsFromArray(host::media_player::ItemList::make(store).autorelease());
    field_.setText(""_ns);
    key();
  }

  // Do what a finger on the field and the end of editing trigger.
  void begin() { objc::send<>(springboard_, "textFieldDidBeginEditing:"_sel, field_); }
  void end() { objc::send<>(springboard_, "textFieldDidEndEditing:"_sel, field_); }
  // Types one key: changes the field's text and updates the table. Returns the number of rows.
  std::size_t type(NSString typed) {
    const objc::AutoreleasePool pool;
    field_.setText(typed);
    key();
    return static_cast<std::size_t>(table_.numberOfRowsInSection(0));
  }
  std::size_t hits() const { return objc::cast<NSArray>(phone_.global("result")).count(); }
  // Compares every title as the platform does.
  std::size_t search_one_by_one(NSString wanted) const {
    std::size_t hits = 0;
    const objc::AutoreleasePool pool;
    for (const auto song : objc::cast<NSArray>(phone_.global("songItems")).of<MPMediaItem>()) {
      const auto title = objc::cast<NSString>(song.valueForProperty(MPMediaItemPropertyTitle));
      hits += title.lowercaseString().rangeOfString(wanted).length != 0;
    }
    return hits;
  }

 private:
  void key() { objc::send<>(springboard_, "textDidChange:"_sel, field_); }

  BenchPhone& phone_;
  UITableView table_;
  UITextField field_;
  const objc::Object springboard_ =
      objc::send<objc::Object>(objc::Object(SpringBoard::cls()), "sharedApplication"_sel);
};

template <class Work>
double core_seconds_for(Work work) {
  const double start = bench::core_seconds();
  work();
  return bench::core_seconds() - start;
}

// The frames after the finger, until one has nothing left to read.
std::vector<double> read_titles(BenchPhone& phone) {
  constexpr double kNothing = 0.1;
  std::vector<double> frames;
  do
    frames.push_back(core_seconds_for([&] { phone.frame(); }));
  while (frames.back() > frames.front() * kNothing);
  return frames;
}

class Report {
 public:
  Report(std::size_t songs, bool figures) : songs_(songs), figures_(figures) {
    if (!figures_) fmt::print("{} songs\n", songs);
  }
  void time(const char* what, double seconds, double aim = 0) const {
    if (figures_) return line(what, seconds, 0);
    fmt::print("  {:<44} {:12.3f} ms", what, seconds * 1e3);
    if (aim > 0)
      fmt::print("   (aim: at most {:.3g}){}", aim * 1e3, seconds <= aim ? "" : "   MISSED");
    fmt::print("\n");
  }
  void key(const char* query, double seconds, std::size_t hits) const {
    if (figures_) return line(fmt::format("key {}", query).c_str(), seconds, hits);
    time(fmt::format("\"{}\" finds {}", query, hits).c_str(), seconds,
         kMostASong * static_cast<double>(songs_));
  }
  void ratio(const char* name, double measured, double reference, double aim) const {
    if (!figures_) bench::print_ratio(name, measured, reference, aim);
  }

 private:
  void line(const char* what, double seconds, std::size_t hits) const {
    fmt::print("{}\t{}\t{:.9f}\t{}\n", songs_, what, seconds, hits);
  }

  std::size_t songs_;
  bool figures_;
};

void measure_reading(BenchPhone& phone, SongList& list, const Report& report) {
  // The table and the rest of the panel are drawn first.
  for (int i = 0; i < 60; ++i)
    phone.frame();
  const double finger = core_seconds_for([&] { list.begin(); });
  const std::vector<double> frames = read_titles(phone);
  report.time("the finger on the field", finger, kQuarterFrame);
  report.time("the worst frame while titles are read", *std::ranges::max_element(frames),
              kQuarterFrame);
  report.time("frames until all titles are read, together",
              std::accumulate(frames.begin(), frames.end(), finger));
  report.time("how long that takes", static_cast<double>(frames.size() - 1) / 60);
  list.end();
}

void measure(BenchPhone& phone, std::size_t songs, int rounds, bool figures) {
  const objc::AutoreleasePool pool;
  const auto library = make_library(songs);
  Database database{""};
  fill(database, *library);
  const Report report{songs, figures};
  SongList list{phone, library};
  measure_reading(phone, list, report);
  for (const char* query : bench::kTitleQueries) {
    const NSString typed = NSString::stringWithUTF8String(query);
    std::size_t found = 0, by_bytes = 0, by_table = 0, by_platform = 0;
    const auto pair = bench::in_turns(
        rounds, [&] { found = list.type(typed); },
        [&] { by_bytes = search_bytes(*library, query); });
    const auto others = bench::in_turns(
        std::max(3, rounds / 5), [&] { by_table = search_table(database, query); },
        [&] { by_platform = list.search_one_by_one(typed); });
    bench::require(found == by_bytes && found == by_table && found == by_platform, query);
    bench::require(list.hits() == found, "the array of hits");
    report.key(query, pair.measured.median, found);
    report.ratio("    a key until the table is reloaded / memmem", pair.measured.median,
                 pair.reference.median, kMostToMemmem);
    report.ratio("    a key until the table is reloaded / LIKE", pair.measured.median,
                 others.measured.median, kMostToLike);
    report.ratio("    a key until the table is reloaded / platform", pair.measured.median,
                 others.reference.median, kMostToPlatform);
  }
  // Other objects with the same titles, none of which has been read.
  const SongList again{phone, library};
  report.time("a key before any title is read",
              core_seconds_for([&] { list.type("zanzibar"_ns); }));
}

}  // namespace

int main(int count, char** arguments) {
  const bool figures = count > 1 && arguments[1] == std::string_view("--figures");
  BenchPhone phone(bench::Pace::kStepped, "{ enable = 1; checked = 1; }");
  measure(phone, 10'000, 25, figures);
  measure(phone, 100'000, 25, figures);
  measure(phone, 1'000'000, 5, figures);
}
