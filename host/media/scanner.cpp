#include "host/media/scanner.h"

#include <fmt/core.h>
#include <malloc.h>

#include <chrono>
#include <utility>

#include "host/media/log.h"
#include "host/media/scan_pace.h"

namespace host::media {

Scanner::~Scanner() {
  thread_.request_stop();
  wake_.raise();
}

Index& Scanner::index() {
  return index_ ? *index_ : index_.emplace(index_path_);
}

std::shared_ptr<const Library> Scanner::remember(std::span<const std::string> roots) {
  return library_ = remembered_library(index(), roots);
}

std::uint64_t Scanner::request(std::vector<std::string> roots) {
  const std::lock_guard lock{mutex_};
  latest_.roots = std::move(roots);
  ++latest_.number;
  wake_.raise();
  if (!thread_.joinable()) {
    thread_ = std::jthread{[this](const std::stop_token& stop) { run(stop); }};
  }
  return latest_.number;
}

std::optional<ScanUpdate> Scanner::take_update() {
  const std::lock_guard lock{mutex_};
  if (updates_.empty()) return std::nullopt;
  ScanUpdate update = std::move(updates_.front());
  updates_.pop_front();
  if (updates_.empty()) signal_.clear();
  return update;
}

Scanner::Request Scanner::latest_request() {
  const std::lock_guard lock{mutex_};
  wake_.clear();
  return latest_;
}

void Scanner::run(const std::stop_token& stop) {
  if (work_ == Work::watch) kept_.watch = &watch_.emplace();
  ScanPace pace{wake_.descriptor(), kept_.watch};
  while (!stop.stop_requested()) {
    using std::chrono::steady_clock;
    const auto start = steady_clock::now();
    if (work_ == Work::load) {
      load();
    } else {
      scan(stop);
    }
    // An index in memory is all that there is of it; one on the disk is closed between scans.
    if (index().store() == IndexStore::on_disk) index_.reset();
    // The library now holds the only copy of what was read; return the rest to the system.
    ::malloc_trim(0);
    if (stop.stop_requested()) return;
    pace.wait(std::chrono::duration_cast<ScanPace::Milliseconds>(steady_clock::now() - start));
  }
}

void Scanner::load() {
  const Request request = latest_request();
  publish({ScanStage::finished, {}, remembered_library(index()), {}, request.number});
}

void Scanner::scan(const std::stop_token& stop) {
  const Request request = latest_request();
  const bool is_first = !std::exchange(has_scanned_, true);
  if (!library_) {
    library_ = remembered_library(index(), request.roots);
    publish({ScanStage::remembered, {}, library_, {}, 0});
  }
  // Only the first scan takes long enough to be followed.
  const ScanReport report = [this, is_first](const ScanProgress& progress) {
    if (is_first) publish({ScanStage::reading, progress, nullptr, {}, 0});
  };
  ScanOutcome outcome = scan_folders(index(), request.roots, report, stop, library_, &kept_);
  if (stop.stop_requested()) return;
  const ScanProgress& counts = outcome.progress;
  if (is_first) {
    log_note(fmt::format("{} songs; {} files read, {} skipped, {} folders unreadable",
                         outcome.library->tracks().size(), counts.read, counts.skipped,
                         counts.unreadable_folders));
  }
  library_ = outcome.library;
  publish({ScanStage::finished, counts, std::move(outcome.library), std::move(outcome.left_out),
           request.number});
}

void Scanner::publish(ScanUpdate update) {
  const std::lock_guard lock{mutex_};
  // A newer count or library replaces one that has not been taken, so a busy screen never works
  // through a backlog, and old libraries take no memory.
  if (!updates_.empty() && updates_.back().stage == update.stage) {
    updates_.back() = std::move(update);
  } else {
    updates_.push_back(std::move(update));
  }
  signal_.raise();
}

}  // namespace host::media
