#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "host/foundation/exports.h"
#include "host/runtime/run_loop.h"
#include "objc/autorelease_pool.h"

namespace host::test {

/// A process's surroundings for one test: a clock that stands still, a run loop on it, Foundation
/// made ready, and an autorelease pool around the test's body.
class HostTest : public ::testing::Test {
 public:
  HostTest() : loop(clock) {
    RunLoop::set_main(&loop);
    foundation::export_foundation();
    pool_.emplace();
  }
  ~HostTest() override {
    pool_.reset();
    RunLoop::set_main(nullptr);
  }

  /// Moves the clock, running all that is due on the way.
  void advance(double seconds) { loop.advance_to(clock, clock.now() + seconds); }

 protected:
  SteppedClock clock;
  RunLoop loop;

 private:
  std::optional<objc::AutoreleasePool> pool_;
};

}  // namespace host::test
