#pragma once

#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "host/media/event_signal.h"
#include "host/media/scan.h"

namespace host::media {

enum class ScanStage { remembered, reading, finished };

// One message of a running scan. `library` is there in the stages `remembered` (what the last scan
// left) and `finished`.
struct ScanUpdate {
  ScanStage stage = ScanStage::reading;
  ScanProgress progress;
  std::shared_ptr<const Library> library;
};

// Scans beside the screen, on a thread of its own. All members are for the main thread, which
// watches `descriptor()` and then takes the updates one by one. Destroying it stops the scan.
class Scanner {
 public:
  explicit Scanner(std::string index_path) : index_path_(std::move(index_path)) {}

  // Begins a scan; one that is running is stopped first.
  void start(std::vector<std::string> roots);

  int descriptor() const { return signal_.descriptor(); }
  std::optional<ScanUpdate> take_update();

 private:
  void run(const std::vector<std::string>& roots, const std::stop_token& stop);
  void publish(ScanUpdate update);

  std::string index_path_;
  EventSignal signal_;
  std::mutex mutex_;
  std::deque<ScanUpdate> updates_;
  std::jthread thread_;  // Last, so that it ends before what it uses.
};

}  // namespace host::media
