#include "tests/random_use/hardships.h"

#include <signal.h>
#include <sys/resource.h>

#include <utility>
#include <vector>

namespace random_use {
namespace {

namespace fs = std::filesystem;

/// One burst in so many is a hard one.
constexpr std::size_t kRarity = 5;
/// The launcher gives up when the home screen ends more often than that.
constexpr std::chrono::seconds kBetweenCrashes{15};
constexpr const char* kKept = "/var/mobile/Library";
constexpr const char* kApplications[] = {"Music", "Preferences"};

void limit_files(pid_t process, rlim_t bytes) {
  const rlimit limit{bytes, RLIM_INFINITY};
  if (process > 0) prlimit(process, RLIMIT_FSIZE, &limit, nullptr);
}

}  // namespace

void Hardships::strike() {
  relieve();
  if (!hand_.once_in(kRarity)) return;
  bool happened = false;
  switch (hand_.below(4)) {
    case 0:
      happened = hide_a_file();
      break;
    case 1:
      happened = fill_the_disk();
      break;
    case 2:
      happened = stop_an_application();
      break;
    default:
      happened = crash_the_home_screen();
  }
  count_ += happened;
}

void Hardships::relieve() {
  if (const auto relief = std::exchange(relief_, nullptr)) relief();
}

/// Hides a file or a folder.
bool Hardships::hide_a_file() {
  std::vector<fs::path> paths;
  std::error_code error;
  for (const auto& entry : fs::recursive_directory_iterator(phone_.device() + kKept, error))
    paths.push_back(entry.path());
  if (paths.empty()) return false;
  const fs::path path = paths[hand_.below(paths.size())];
  const fs::perms before = fs::status(path, error).permissions();
  fs::permissions(path, fs::perms::none, error);
  relief_ = [path, before] {
    std::error_code ignored;
    fs::permissions(path, before, ignored);
  };
  return !error;
}

bool Hardships::fill_the_disk() {
  std::vector<pid_t> processes{phone_.child("SpringBoard")};
  for (const char* application : kApplications)
    processes.push_back(phone_.child(application));
  for (const pid_t process : processes)
    limit_files(process, 0);
  relief_ = [processes] {
    for (const pid_t process : processes)
      limit_files(process, RLIM_INFINITY);
  };
  return processes.front() > 0;
}

bool Hardships::stop_an_application() {
  const pid_t process = phone_.child(hand_.of(kApplications));
  if (process <= 0) return false;
  kill(process, SIGSTOP);
  phone_.expect("does not answer");
  relief_ = [process] { kill(process, SIGCONT); };
  return true;
}

bool Hardships::crash_the_home_screen() {
  if (Clock::now() - calm_since_ < kBetweenCrashes) return false;
  const pid_t process = phone_.child("SpringBoard");
  if (process <= 0) return false;
  phone_.expect("SpringBoard ended");
  kill(process, SIGABRT);
  phone_.has_restarted(process);
  calm_since_ = Clock::now();
  return true;
}

}  // namespace random_use
