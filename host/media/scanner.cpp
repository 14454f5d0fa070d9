#include "host/media/scanner.h"

#include <fmt/core.h>
#include <malloc.h>

#include "host/media/log.h"

namespace host::media {

void Scanner::start(std::vector<std::string> roots) {
  thread_ = {};  // Stops and joins: two scans must not share the index.
  thread_ = std::jthread{
      [this, roots = std::move(roots)](const std::stop_token& stop) { run(roots, stop); }};
}

std::optional<ScanUpdate> Scanner::take_update() {
  const std::lock_guard lock{mutex_};
  if (updates_.empty()) return std::nullopt;
  ScanUpdate update = std::move(updates_.front());
  updates_.pop_front();
  if (updates_.empty()) signal_.clear();
  return update;
}

void Scanner::run(const std::vector<std::string>& roots, const std::stop_token& stop) {
  Index index{index_path_};
  const auto remembered = remembered_library(index, roots);
  publish({ScanStage::remembered, {}, remembered});
  ScanOutcome outcome = scan_folders(
      index, roots,
      [this](const ScanProgress& progress) {
        publish({ScanStage::reading, progress, nullptr});
      },
      stop, remembered);
  if (stop.stop_requested()) return;
  const ScanProgress& counts = outcome.progress;
  log_note(fmt::format("{} songs; {} files read, {} skipped, {} folders unreadable",
                       outcome.library->tracks().size(), counts.read, counts.skipped,
                       counts.unreadable_folders));
  publish({ScanStage::finished, counts, std::move(outcome.library)});
  // The library now holds the only copy of what was read; return the rest to the system.
  ::malloc_trim(0);
}

void Scanner::publish(ScanUpdate update) {
  const std::lock_guard lock{mutex_};
  // A newer count replaces one that has not been taken, so a busy screen never works through a
  // backlog.
  const bool is_count = update.stage == ScanStage::reading;
  if (is_count && !updates_.empty() && updates_.back().stage == ScanStage::reading) {
    updates_.back() = std::move(update);
  } else {
    updates_.push_back(std::move(update));
  }
  signal_.raise();
}

}  // namespace host::media
