#pragma once

#include <functional>

#include "host/console/line_server.h"
#include "host/runtime/run_loop.h"

namespace host::launcher {

/// Executes the console's lines from the run loop.
class ConsoleService {
 public:
  ConsoleService(RunLoop& loop, int descriptor, console::Session& session,
                 std::function<void()> on_quit)
      : loop_(loop), server_(descriptor, session, std::move(on_quit)) {
    watch();
  }
  ~ConsoleService() { loop_.unwatch(watch_); }
  ConsoleService(const ConsoleService&) = delete;
  ConsoleService& operator=(const ConsoleService&) = delete;

 private:
  void watch() {
    watch_ = loop_.watch(server_.descriptor(), [this] {
      // A line that lets time pass runs the loop recursively, which must not wait for input that is
      // not being read.
      loop_.unwatch(watch_);
      server_.serve();
      watch();
    });
  }

  RunLoop& loop_;
  console::LineServer server_;
  RunLoop::Id watch_ = 0;
};

}  // namespace host::launcher
