#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <thread>
#include <vector>

#include "host/basics/event_signal.h"
#include "host/media/scan.h"

namespace host::media {

enum class ScanStage { remembered, reading, finished };

// One message of a running scan. `library` is set in the stages `remembered` (the result of the
// last scan) and `finished`.
struct ScanUpdate {
  ScanStage stage = ScanStage::reading;
  ScanProgress progress;
  std::shared_ptr<const Library> library;
  LeftOut left_out;
  std::uint64_t request = 0;  // The latest request that the library answers.
};

// Scans in the background, on its own thread, which then waits for more to do: other folders, or
// changes in those that it has scanned. All members are for the main thread, which watches
// `descriptor()` and then takes the updates one by one. The destructor stops the scan.
class Scanner {
 public:
  enum class Work {
    scan,   // Only on request.
    watch,  // On request, and when something in the folders has changed.
    load,   // On request, takes what another process has scanned.
  };

  explicit Scanner(std::string index_path, Work work = Work::scan)
      : index_path_(std::move(index_path)), work_(work) {}
  ~Scanner();

  // Returns what the last scan of these folders has left, which the thread would otherwise load and
  // publish. Only before the first request.
  std::shared_ptr<const Library> remember(std::span<const std::string> roots);

  // Scans these folders from now on; a running scan of others ends first. Returns the request's
  // number.
  std::uint64_t request(std::vector<std::string> roots);

  int descriptor() const { return signal_.descriptor(); }
  std::optional<ScanUpdate> take_update();

 private:
  struct Request {
    std::uint64_t number = 0;
    std::vector<std::string> roots;
  };

  void run(const std::stop_token& stop);
  void scan(const std::stop_token& stop);
  void load();
  Index& index();
  Request latest_request();
  void publish(ScanUpdate update);

  std::string index_path_;
  const Work work_;
  EventSignal signal_;
  EventSignal wake_;  // There is a request, or the thread is to end.
  std::mutex mutex_;
  Request latest_;
  std::deque<ScanUpdate> updates_;

  // These are the thread's own, once it runs.
  std::optional<Index> index_;
  std::optional<FolderWatch> watch_;
  KeptByScans kept_;
  std::shared_ptr<const Library> library_;
  bool has_scanned_ = false;

  std::jthread thread_;  // Last, so it stops before the members that it uses are destroyed.
};

}  // namespace host::media
