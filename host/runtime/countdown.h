#pragma once

#include <functional>

#include "host/runtime/run_loop.h"

namespace host {

/// Runs its work once after a delay, unless it is stopped or restarted before.
class Countdown {
 public:
  Countdown() = default;
  Countdown(const Countdown&) = delete;
  Countdown& operator=(const Countdown&) = delete;
  ~Countdown() { stop(); }

  void start(double seconds, std::function<void()> work) {
    stop();
    RunLoop& loop = RunLoop::main();
    timer_ = loop.add_timer(loop.now() + seconds, 0, [this, work = std::move(work)] {
      timer_ = 0;
      // The work may destroy this countdown's owner, and `work` with it.
      const auto kept = work;
      kept();
    });
  }

  void stop() {
    if (timer_ != 0 && RunLoop::has_main()) RunLoop::main().remove_timer(timer_);
    timer_ = 0;
  }

 private:
  RunLoop::Id timer_ = 0;
};

}  // namespace host
