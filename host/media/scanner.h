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

// One message of a running scan. `library` is set in the stages `remembered` (the result of the
// last scan) and `finished`.
struct ScanUpdate {
  ScanStage stage = ScanStage::reading;
  ScanProgress progress;
  std::shared_ptr<const Library> library;
};

// Scans in the background, on its own thread. All members are for the main thread, which watches
// `descriptor()` and then takes the updates one by one. The destructor stops the scan.
class Scanner {
 public:
  explicit Scanner(std::string index_path) : index_path_(std::move(index_path)) {}

  // Starts a scan; stops a running one first.
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
  std::jthread thread_;  // Last, so it stops before the members that it uses are destroyed.
};

}  // namespace host::media
