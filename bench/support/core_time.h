#pragma once

#include <time.h>

namespace bench {

inline double clock_seconds(clockid_t clock) {
  timespec time;
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// This thread's CPU time in seconds, which excludes other programs.
inline double core_seconds() {
  return clock_seconds(CLOCK_THREAD_CPUTIME_ID);
}

/// The CPU time of all threads of this process, in seconds.
inline double process_seconds() {
  return clock_seconds(CLOCK_PROCESS_CPUTIME_ID);
}

}  // namespace bench
