#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/media/library.h"
#include "host/media/scanner.h"
#include "host/media_player/demo_maker.h"
#include "host/media_player/media_options.h"
#include "host/runtime/run_loop.h"

namespace host::media_player {

/// Provides the library: makes the demo music if it is wanted, then scans the folders. Calls its
/// listener on the main thread only, and does the work elsewhere.
class LibraryFeed {
 public:
  struct Listener {
    std::function<void(std::shared_ptr<const media::Library>)> on_library;
    std::function<void(const MediaProgress&)> on_progress;
  };

  LibraryFeed(const MediaOptions& options, Listener listener);
  ~LibraryFeed();
  LibraryFeed(const LibraryFeed&) = delete;
  LibraryFeed& operator=(const LibraryFeed&) = delete;

  /// When this returns, the listener has a library: the complete one, or what the last scan left.
  void start();

 private:
  void make_demo_now();
  void scan_now();
  void start_demo();
  void start_scan();
  void receive_demo_news();
  void receive_scan_updates();
  void take(const media::ScanUpdate& update);
  void deliver(std::shared_ptr<const media::Library> library);
  void report_demo(media::DemoProgress progress);
  void report_files(MediaProgress::Stage stage, const media::ScanProgress& files);

  const DemoMusic* missing_demo() const;
  std::vector<std::string> roots_;
  std::optional<DemoMusic> demo_;
  std::string index_path_;
  FirstScan first_scan_;
  Listener listener_;
  std::shared_ptr<const media::Library> library_;
  RunLoop::Id demo_watch_ = 0;
  RunLoop::Id scan_watch_ = 0;
  std::unique_ptr<DemoMaker> demo_maker_;
  std::unique_ptr<media::Scanner> scanner_;
};

}  // namespace host::media_player
