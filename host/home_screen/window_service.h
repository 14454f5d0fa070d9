#pragma once

#include "host/runtime/run_loop.h"
#include "host/screen/window.h"

namespace host::launcher {

/// Handles the window's events from the run loop: immediately if the desktop has a descriptor for
/// them, otherwise once per frame.
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
