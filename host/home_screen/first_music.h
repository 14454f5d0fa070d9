#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "host/home_screen/boot_screen.h"
#include "host/media_player/media_options.h"
#include "host/runtime/run_loop.h"

namespace host::launcher {

/// Waits for the songs of a phone that does not know them yet: extensions read the library once,
/// when they are loaded. The loop turns meanwhile, and a phone with a window shows how far it is.
class FirstMusic {
 public:
  enum class Screen { kShown, kNone };
  FirstMusic(RunLoop& loop, Screen screen) : loop_(loop), screen_(screen) {}

  void take(const media_player::MediaProgress& progress);
  /// Returns false when the loop was stopped before the songs were there.
  bool wait();

 private:
  RunLoop& loop_;
  Screen screen_;
  std::unique_ptr<BootScreen> shown_;
  double next_look_ = 0;
  bool is_waiting_ = false;
  bool is_ready_ = false;
};

}  // namespace host::launcher
