#pragma once

#include <deque>

namespace host::launcher {

/// Limits the restarts of a process that keeps ending: at most five within a minute of its life.
class RestartLimit {
 public:
  static constexpr std::size_t kMostRestarts = 5;
  static constexpr double kWithinSeconds = 60;

  /// Returns whether the process may be started again at `now`, in seconds, and counts the restart
  /// if so. Time in which it only starts should not count: on a slow machine that takes long.
  bool allow(double now) {
    while (!restarts_.empty() && restarts_.front() <= now - kWithinSeconds)
      restarts_.pop_front();
    if (restarts_.size() >= kMostRestarts) return false;
    restarts_.push_back(now);
    return true;
  }

 private:
  std::deque<double> restarts_;
};

}  // namespace host::launcher
