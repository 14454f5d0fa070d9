#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "host/foundation/exports.h"
#include "host/runtime/run_loop.h"
#include "objc/autorelease_pool.h"

namespace host::test {

/// The environment of one test: a stopped clock, a run loop on it, an initialised Foundation, and
/// an autorelease pool around the test's body.
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

  /// Advances the clock and runs everything that becomes due.
  void advance(double seconds) { loop.advance_to(clock, clock.now() + seconds); }

 protected:
  SteppedClock clock;
  RunLoop loop;

 private:
  std::optional<objc::AutoreleasePool> pool_;
};

}  // namespace host::test
