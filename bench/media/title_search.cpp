// Searches titles with SQLite: `title_search COUNT`. A line for each way and query: the way, the
// query, the seconds of processor time (the median) and the hits, separated by tabs. The
// last line is the making of the index of three letters.

#include <fmt/core.h>

#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "bench/support/core_time.h"
#include "bench/support/ratio.h"
#include "bench/support/song_titles.h"
#include "host/media/database.h"

namespace {

using host::media::Database;

constexpr int kRounds = 7;
// Shorter texts have no entry in an index of three letters.
constexpr std::size_t kLeastIndexed = 3;

void fill(Database& database, std::size_t count) {
  database.execute("CREATE TABLE songs (id INTEGER PRIMARY KEY, title TEXT); BEGIN");
  auto insert = database.prepare("INSERT INTO songs (title) VALUES (?)");
  std::mt19937 random{bench::kTitleSeed};
  for (std::size_t i = 0; i < count; ++i)
    insert.bind(1, std::string_view{bench::make_title(random)}).run();
  database.execute("COMMIT");
}

double make_index(Database& database) {
  const double start = bench::core_seconds();
  database.execute(
      "CREATE VIRTUAL TABLE parts USING fts5(title, tokenize='trigram', content='songs',"
      " content_rowid='id'); INSERT INTO parts(parts) VALUES ('rebuild')");
  return bench::core_seconds() - start;
}

void search(Database& database, const char* way, const char* sql, const char* query,
            const std::string& wanted) {
  std::vector<double> seconds;
  std::size_t hits = 0;
  for (int round = 0; round < kRounds; ++round) {
    const double start = bench::core_seconds();
    auto select = database.prepare(sql);
    select.bind(1, std::string_view{wanted});
    for (hits = 0; select.step() == host::media::DatabaseStatus::row; ++hits) {
    }
    seconds.push_back(bench::core_seconds() - start);
  }
  fmt::print("{}\t{}\t{:.9f}\t{}\n", way, query, bench::summary(seconds).median, hits);
}

}  // namespace

int main(int count, char** words) {
  const std::size_t songs = count == 2 ? std::strtoul(words[1], nullptr, 10) : 0;
  if (songs == 0) {
    fmt::print(stderr, "Usage: title_search COUNT\n");
    return 2;
  }
  Database database{""};
  fill(database, songs);
  const double making = make_index(database);
  for (const std::string query : bench::kTitleQueries) {
    search(database, "LIKE", "SELECT id FROM songs WHERE title LIKE ?", query.c_str(),
           "%" + query + "%");
    if (query.size() >= kLeastIndexed)
      search(database, "trigram", "SELECT rowid FROM parts WHERE title MATCH ?", query.c_str(),
             "\"" + query + "\"");
  }
  fmt::print("making\t\t{:.9f}\t{}\n", making, songs);
}
