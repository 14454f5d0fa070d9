#pragma once

#include "host/runtime/run_loop.h"
#include "host/screen/window.h"

namespace host::launcher {

/// Serves the window's events from the run loop: at once where the desktop has a descriptor for
/// them, otherwise once a frame.
class WindowService {
 public:
  WindowService(RunLoop& loop, screen::Window& window);
  ~WindowService();
  WindowService(const WindowService&) = delete;
  WindowService& operator=(const WindowService&) = delete;

 private:
  RunLoop& loop_;
  RunLoop::Id watch_ = 0;
  RunLoop::Id timer_ = 0;
};

}  // namespace host::launcher
