#include "host/home_screen/passing_time.h"

#include <poll.h>

#include <algorithm>

namespace host::launcher {
namespace {

constexpr double kNap = 0.002;

}  // namespace

void let_time_pass(RunLoop& loop, double seconds) {
  const double end = loop.now() + seconds;
  for (loop.run_ready(); loop.now() < end; loop.run_ready()) {
    const double left = std::min(kNap, end - loop.now());
    poll(nullptr, 0, std::max(1, static_cast<int>(left * 1e3)));
  }
}

}  // namespace host::launcher
