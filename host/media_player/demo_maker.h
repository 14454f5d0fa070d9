#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "host/basics/event_signal.h"
#include "host/demo_music/demo_library.h"
#include "host/media_player/media_options.h"

namespace host::media_player {

/// Makes the demo music on its own thread. All members are for the main thread, which watches
/// `descriptor()`. Destroying it stops the work; no incomplete files remain.
class DemoMaker {
 public:
  struct News {
    media::DemoProgress progress;
    bool is_over = false;
    std::optional<std::string> failure;  // Why there is no music, once it is over.
  };

  explicit DemoMaker(DemoMusic demo);

  int descriptor() const { return signal_.descriptor(); }
  /// Returns the current state.
  News take_news();

 private:
  void run(const DemoMusic& demo, const std::stop_token& stop);

  EventSignal signal_;
  std::mutex mutex_;
  News news_;
  std::jthread thread_;  // Last, so that it ends before what it uses.
};

}  // namespace host::media_player
