#pragma once

#include <time.h>

namespace bench {

/// This thread's CPU time in seconds, which excludes other programs.
inline double core_seconds() {
  timespec time;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace bench
