#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

namespace host::activator {

/// Looks on, from a thread of its own, while other people's code runs: whoever has not come back
/// after the limit is named, while it still hangs. Time is the machine's, since the run loop's
/// stands still meanwhile.
class HangWatch {
 public:
  using Report = std::function<void(const std::string& name)>;

  /// `report` is called from the watch's thread, once for each call that takes too long.
  HangWatch(std::chrono::milliseconds limit, Report report);
  ~HangWatch();
  HangWatch(const HangWatch&) = delete;
  HangWatch& operator=(const HangWatch&) = delete;

  /// Runs `call`. One inside another is part of the outer one.
  void during(const std::string& name, const std::function<void()>& call);

 private:
  /// False when a call is looked at already.
  bool begin(const std::string& name);
  void look_on();

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
