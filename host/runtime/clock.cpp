#include "host/runtime/clock.h"

#include <ctime>

namespace host {

double RealClock::now() const {
  timespec time{};
  clock_gettime(CLOCK_MONOTONIC, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace host
