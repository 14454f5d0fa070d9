#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace host::activator {

/// Watches, on its own thread, while other people's code runs: a call that has not returned within
/// the limit is reported while it still hangs. The limit is in real time, since the run loop's
/// clock stops during the call.
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

  const std::chrono::milliseconds limit_;
  const Report report_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::string name_;
  std::chrono::steady_clock::time_point due_;
  bool watching_ = false;
  bool ending_ = false;
  std::thread thread_;
};

}  // namespace host::activator
