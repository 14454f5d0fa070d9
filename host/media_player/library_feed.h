#pragma once

#include <cstdint>
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

  /// When this returns, the listener has a library, the complete one or what the last scan left,
  /// unless the first scan is to be awaited.
  void start();

  /// Whether a path is, or is in, one of the folders or songs that make the library.
  bool covers(const std::string& path) const { return media::is_within(path, roots_); }
  /// Adds files and folders to the library until the process ends, and calls `then` when it has
  /// them. What is in the folders of music anyway is only waited for.
  void bring_in(const std::vector<std::string>& paths, std::function<void()> then);

  /// Looks at the index again, which another process has changed.
  void reload();

 private:
  struct Waiting {
    std::uint64_t request;
    std::function<void()> then;
  };

  void load_now();
  void make_demo_now();
  void scan_now();
  void start_demo();
  void start_beside();
  media::Scanner::Work work() const;
  media::Scanner& scanner();
  void request_scan();
  bool scans_at_once() const { return first_scan_ == FirstScan::kBeforeStart; }
  void answer_waiting(std::uint64_t request);
  void say_left_out(const media::LeftOut& left_out);
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
  bool watches_folders_;
  bool is_stepped_;
  Listener listener_;
  std::shared_ptr<const media::Library> library_;
  std::vector<Waiting> waiting_;
  std::uint64_t last_request_ = 0;
  std::string said_left_out_;
  RunLoop::Id turn_ = 0;  // While a scan waits for its end.
  RunLoop::Id demo_watch_ = 0;
  RunLoop::Id scan_watch_ = 0;
  std::unique_ptr<DemoMaker> demo_maker_;
  std::unique_ptr<media::Scanner> scanner_;
};

}  // namespace host::media_player
