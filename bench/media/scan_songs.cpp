// Scans a folder into a new index: `scan_songs FOLDER INDEX`. Prints the songs, the seconds, the
// seconds of processor time, and the most memory in megabytes that the process has had.

#include <fmt/core.h>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "bench/support/core_time.h"
#include "host/media/reading_trial.h"
#include "host/media/scan.h"

namespace {

// That of the program itself. What `getrusage` tells begins with that of the program that started
// this one.
double most_megabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    double kilobytes = 0;
    if (std::sscanf(line.c_str(), "VmHWM: %lf", &kilobytes) == 1) return kilobytes / 1024;
  }
  return 0;
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) {
    fmt::print(stderr, "Usage: scan_songs FOLDER INDEX\n");
    return 2;
  }
  const std::vector<std::string> roots{words[1]};
  const std::string index_file = words[2];
  host::media::keep_reading_marks(index_file + ".marks", &host::media::read_for_trial);
  const auto start = std::chrono::steady_clock::now();
  const double core = bench::process_seconds();
  host::media::Index index{index_file};
  const auto outcome =
      host::media::scan_folders(index, roots, [](const host::media::ScanProgress&) {});
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
  fmt::print("{} {:.6f} {:.6f} {:.1f}\n", outcome.library->tracks().size(), seconds.count(),
             bench::process_seconds() - core, most_megabytes());
}
