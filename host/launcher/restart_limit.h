#pragma once

#include <deque>

namespace host::launcher {

/// A process that keeps ending is not started for ever: at most five times within a minute.
class RestartLimit {
 public:
  static constexpr std::size_t kMostRestarts = 5;
  static constexpr double kWithinSeconds = 60;

  /// May the process be started again at `now`, in seconds? If so the restart is counted.
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
