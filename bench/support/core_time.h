#pragma once

#include <time.h>

namespace bench {

/// Seconds that this thread has run on its core: what other programs do meanwhile does not count.
inline double core_seconds() {
  timespec time;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace bench
