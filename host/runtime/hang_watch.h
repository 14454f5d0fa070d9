#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace host {

/// Watches, on its own thread, while other people's code runs: a call that has not returned within
/// the limit is reported while it still hangs. The limit is in real time, since the run loop's
/// clock stops during the call; time in which the whole process was stopped does not count.
class HangWatch {
 public:
  using Report = std::function<void(const std::string& name)>;

  /// `report` is called on the watch's thread, once for each call that takes too long.
  HangWatch(std::chrono::milliseconds limit, Report report);
  ~HangWatch();
  HangWatch(const HangWatch&) = delete;
  HangWatch& operator=(const HangWatch&) = delete;

  /// Runs `call`. A nested call counts as part of the outer one.
  void during(const std::string& name, const std::function<void()>& call);

 private:
  /// Returns false when a call is already being watched.
  bool begin(const std::string& name);
  void watch_calls();
  /// Waits until the call has lasted for the limit, or has returned.
  void wait_for_limit(std::unique_lock<std::mutex>& lock, int call);
  bool is_over(int call) const { return ending_ || !watching_ || call_ != call; }

  const std::chrono::milliseconds limit_;
  const Report report_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::string name_;
  int call_ = 0;
  bool watching_ = false;
  bool ending_ = false;
  std::thread thread_;
};

}  // namespace host
