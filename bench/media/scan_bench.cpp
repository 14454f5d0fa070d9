// Measures how much faster a scan is when no file has changed. Every time is the best of a few runs
// with the files in memory, and every run is checked to find all songs.

#include <fmt/core.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "bench/media/small_songs.h"
#include "bench/support/core_time.h"
#include "host/media/reading_trial.h"
#include "host/media/scan.h"

namespace {

namespace fs = std::filesystem;
using host::media::Index;
using host::media::ScanOutcome;

constexpr std::size_t kSongs = 10'000;
constexpr int kRuns = 3;

void require(bool is_true, const char* what) {
  if (is_true) return;
  fmt::print(stderr, "wrong result: {}\n", what);
  std::exit(1);
}

double milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
      .count();
}

ScanOutcome scan(const fs::path& index_file, const std::vector<std::string>& roots,
                 std::shared_ptr<const host::media::Library> remembered, std::size_t to_read) {
  Index index{index_file};
  ScanOutcome outcome = host::media::scan_folders(
      index, roots, [](const host::media::ScanProgress&) {}, {}, std::move(remembered));
  require(outcome.library->tracks().size() == kSongs, "the songs of a scan");
  require(outcome.progress.read == to_read, "the files that were opened");
  return outcome;
}

void measure(const fs::path& folder) {
  require(bench::make_small_songs(folder / "music", kSongs), "songs");
  const std::vector roots{(folder / "music").string()};
  const fs::path index_file = folder / "index.db";
  const fs::path marks_file = folder / "marks";
  double unmarked_core = 1e9;
  double marked_core = 1e9;
  double first = 1e9;
  double remembering = 1e9;
  double unchanged = 1e9;
  const auto first_scan = [&] {
    for (const char* suffix : {"", "-wal", "-shm"})
      fs::remove(index_file.string() + suffix);
    return milliseconds([&] { scan(index_file, roots, nullptr, kSongs); });
  };
  for (int run = 0; run < kRuns; ++run) {
    double core = bench::core_seconds();
    host::media::keep_reading_marks({}, &host::media::read_for_trial);
    first_scan();
    unmarked_core = std::min(unmarked_core, bench::core_seconds() - core);
    core = bench::core_seconds();
    host::media::keep_reading_marks(marks_file, &host::media::read_for_trial);
    first = std::min(first, first_scan());
    marked_core = std::min(marked_core, bench::core_seconds() - core);
    std::shared_ptr<const host::media::Library> library;
    remembering = std::min(remembering, milliseconds([&] {
                             Index index{index_file};
                             library = host::media::remembered_library(index, roots);
                           }));
    require(library->tracks().size() == kSongs, "the remembered songs");
    unchanged = std::min(unchanged, milliseconds([&] {
                           require(scan(index_file, roots, library, 0).library == library,
                                   "the library that was there already");
                         }));
  }
  fmt::print("{} songs\n", kSongs);
  fmt::print("  first scan                {:8.1f} ms\n", first);
  fmt::print("  its work for marks        {:8.1f} ms of a core's {:.1f} ms\n",
             (marked_core - unmarked_core) * 1e3, marked_core * 1e3);
  fmt::print("  remembered library        {:8.1f} ms  first scan / this = {:.1f}\n", remembering,
             first / remembering);
  fmt::print("  scan with nothing changed {:8.1f} ms  first scan / this = {:.1f}\n", unchanged,
             first / unchanged);
}

}  // namespace

int main() {
  std::string name = (fs::temp_directory_path() / "scan-bench-XXXXXX").string();
  if (!::mkdtemp(name.data())) return 1;
  measure(name);
  fs::remove_all(name);
  return 0;
}
