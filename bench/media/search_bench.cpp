// One keystroke in the search field: the messages that a search sends to every song of the library,
// beside a pass of case-folding `memmem` over the same titles, and beside SQLite's `LIKE`. All
// three must find the same songs.

#include <fmt/core.h>

#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "bench/support/ratio.h"
#include "host/foundation/exports.h"
#include "host/media/database.h"
#include "host/media/library.h"
#include "host/media_player/exports.h"
#include "host/media_player/item_store.h"
#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSArray.h"

namespace {

using host::media::Database;
using host::media::Library;
using host::media::SongRecord;

constexpr double kMostToMemmem = 2;
constexpr double kMostToLike = 0.1;
constexpr const char* kQueries[] = {"a", "lov", "zanzibar", "no such title"};

void require(bool is_true, const char* what) {
  if (is_true) return;
  fmt::print(stderr, "wrong result: {}\n", what);
  std::exit(1);
}

// Titles as songs have them: a few words, capitals, now and then a number or a letter beyond ASCII.
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

// The walk over the songs, message by message.
std::size_t search(NSArray songs, NSString typed, NSMutableArray hits) {
  const objc::AutoreleasePool pool;
  hits.removeAllObjects();
  const NSString wanted = typed.lowercaseString();
  for (const MPMediaItem song : songs.of<MPMediaItem>()) {
    const auto title = objc::cast<NSString>(song.valueForProperty(MPMediaItemPropertyTitle));
    if (!title.length()) continue;
    if (title.lowercaseString().rangeOfString(wanted).location != NSNotFound) hits.addObject(song);
  }
  return hits.count();
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

void measure(std::size_t songs, int rounds) {
  const objc::AutoreleasePool pool;
  const auto library = make_library(songs);
  Database database{""};
  fill(database, *library);
  const auto store = std::make_shared<host::media_player::ItemStore>(library);
  // What the panel holds: a changeable array of all items.
  const NSMutableArray items =
      NSMutableArray::arrayWithArray(host::media_player::ItemList::make(store).autorelease());
  const NSMutableArray hits = NSMutableArray::array();
  fmt::print("{} songs\n", songs);
  const double first = bench::seconds_for([&] { search(items, "q"_ns, hits); });
  fmt::print("  the first keystroke of a process {:28.3f} ms\n", first * 1e3);
  for (const char* query : kQueries) {
    const NSString typed = NSString::stringWithUTF8String(query);
    std::size_t found = 0, by_bytes = 0, by_table = 0;
    const auto pair = bench::in_turns(
        rounds, [&] { found = search(items, typed, hits); },
        [&] { by_bytes = search_bytes(*library, query); });
    const auto like = bench::in_turns(
        std::max(3, rounds / 5), [&] { by_table = search_table(database, query); }, [] {});
    require(found == by_bytes && found == by_table, query);
    require(hits.count() == found, "the array of hits");
    fmt::print("  \"{}\" finds {}\n", query, found);
    bench::print_ratio("    all messages / memmem", pair.measured.median, pair.reference.median,
                       kMostToMemmem);
    bench::print_ratio("    all messages / LIKE", pair.measured.median, like.measured.median,
                       kMostToLike);
  }
}

}  // namespace

int main() {
  const objc::AutoreleasePool pool;
  host::foundation::export_foundation();
  host::media_player::export_media_player();
  measure(100'000, 25);
  measure(1'000'000, 5);
  return 0;
}
