#include "host/activator/event/hang_watch.h"

#include <utility>

namespace host::activator {

HangWatch::HangWatch(std::chrono::milliseconds limit, Report report)
    : limit_(limit), report_(std::move(report)) {}

HangWatch::~HangWatch() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  changed_.notify_one();
  if (thread_.joinable()) thread_.join();
}

void HangWatch::during(const std::string& name, const std::function<void()>& call) {
  if (!begin(name)) return call();
  struct End {
    HangWatch& watch;
    ~End() {
      const std::lock_guard lock(watch.mutex_);
      watch.watching_ = false;
      watch.changed_.notify_one();
    }
  };
  const End end{*this};
  call();
}

bool HangWatch::begin(const std::string& name) {
  const std::lock_guard lock(mutex_);
  if (std::exchange(watching_, true)) return false;
  name_ = name;
  due_ = std::chrono::steady_clock::now() + limit_;
  // The first call starts the thread: on most phones no gesture is ever made.
  if (!thread_.joinable()) thread_ = std::thread([this] { watch_calls(); });
  changed_.notify_one();
  return true;
}

void HangWatch::watch_calls() {
  std::unique_lock lock(mutex_);
  while (!ending_) {
    if (!watching_) {
      changed_.wait(lock);
      continue;
    }
    const auto due = due_;
    if (changed_.wait_until(lock, due) == std::cv_status::no_timeout) continue;
    if (!watching_ || due_ != due) continue;
    report_(name_);
    changed_.wait(lock, [this, due] { return ending_ || !watching_ || due_ != due; });
  }
}

}  // namespace host::activator
