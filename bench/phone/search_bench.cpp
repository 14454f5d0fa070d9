// Measures one key in the search field of the open panel, until the table shows the results,
// relative to a case-folding `memmem` over the same titles, and to SQLite's `LIKE`. All three must
// find the same songs.

#include <fmt/core.h>

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "bench/phone/bench_phone.h"
#include "bench/support/ratio.h"
#include "host/media/database.h"
#include "host/media/library.h"
#include "host/media_player/item_store.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITextField.h"

namespace {

using bench::BenchPhone;
using host::media::Database;
using host::media::Library;
using host::media::SongRecord;

constexpr double kMostToMemmem = 2;
constexpr double kMostToLike = 0.1;
constexpr const char* kQueries[] = {"a", "lov", "zanzibar", "no such title"};

// Realistic titles: a few words, capitals, occasionally a number or a letter beyond ASCII.
std::string make_title(std::mt19937& random) {
  static constexpr const char* words[] = {
      "Love",   "Night", "Blue",  "the",  "of",   "Dance",    "River", "In",   "Heart",
      "Summer", "Ghost", "Train", "Slow", "Fire", "Electric", "Rain",  "Moon", "Little",
      "Garden", "Snow",  "My",    "Lost", "Song", "Runner",   "City",  "Déjà", "Señor"};
  std::string title = words[random() % std::size(words)];
  for (std::uint32_t more = random() % 5; more > 0; --more)
    title += std::string{" "} + words[random() % std::size(words)];
  if (random() % 8 == 0) title += fmt::format(" ({})", 1950 + random() % 70);
  if (random() % 10'000 == 0) title += " Zanzibar";
  return title;
}

std::shared_ptr<const Library> make_library(std::size_t songs) {
  std::mt19937 random{7};
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
    songs.addObjectsFromArray(host::media_player::ItemList::make(store).autorelease());
    field_.setText(""_ns);
    key();
  }

  // Does what a finger on the field triggers.
  void begin() { objc::send<>(springboard_, "textFieldDidBeginEditing:"_sel, field_); }
  // Types one key: changes the field's text and updates the table. Returns the number of rows.
  std::size_t type(NSString typed) {
    const objc::AutoreleasePool pool;
    field_.setText(typed);
    key();
    return static_cast<std::size_t>(table_.numberOfRowsInSection(0));
  }
  std::size_t hits() const { return objc::cast<NSArray>(phone_.global("result")).count(); }

 private:
  void key() { objc::send<>(springboard_, "textDidChange:"_sel, field_); }

  BenchPhone& phone_;
  UITableView table_;
  UITextField field_;
  const objc::Object springboard_ =
      objc::send<objc::Object>(objc::Object(SpringBoard::cls()), "sharedApplication"_sel);
};

void measure(BenchPhone& phone, std::size_t songs, int rounds) {
  const objc::AutoreleasePool pool;
  const auto library = make_library(songs);
  Database database{""};
  fill(database, *library);
  SongList list{phone, library};
  fmt::print("{} songs\n", songs);
  fmt::print("  the finger on the field {:35.3f} ms\n",
             bench::seconds_for([&] { list.begin(); }) * 1e3);
  for (const char* query : kQueries) {
    const NSString typed = NSString::stringWithUTF8String(query);
    std::size_t found = 0, by_bytes = 0, by_table = 0;
    const auto pair = bench::in_turns(
        rounds, [&] { found = list.type(typed); },
        [&] { by_bytes = search_bytes(*library, query); });
    const auto like = bench::in_turns(
        std::max(3, rounds / 5), [&] { by_table = search_table(database, query); }, [] {});
    bench::require(found == by_bytes && found == by_table, query);
    bench::require(list.hits() == found, "the array of hits");
    fmt::print("  \"{}\" finds {}\n", query, found);
    bench::print_ratio("    a key until the table is reloaded / memmem", pair.measured.median,
                       pair.reference.median, kMostToMemmem);
    bench::print_ratio("    a key until the table is reloaded / LIKE", pair.measured.median,
                       like.measured.median, kMostToLike);
  }
}

}  // namespace

int main() {
  BenchPhone phone(bench::Pace::kStepped, "{ enable = 1; checked = 1; }");
  measure(phone, 100'000, 25);
  measure(phone, 1'000'000, 5);
}
