#include "host/runtime/hang_watch.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

// A pause of the process counts as no more than this.
constexpr std::chrono::milliseconds kLongestSlice{250};

}  // namespace

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
  ++call_;
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
    const int call = call_;
    wait_for_limit(lock, call);
    if (is_over(call)) continue;
    report_(name_);
    changed_.wait(lock, [this, call] { return is_over(call); });
  }
}

void HangWatch::wait_for_limit(std::unique_lock<std::mutex>& lock, int call) {
  using Clock = std::chrono::steady_clock;
  Clock::duration left = limit_;
  while (left > Clock::duration::zero() && !is_over(call)) {
    const auto slice = std::min<Clock::duration>(left, kLongestSlice);
    const auto before = Clock::now();
    changed_.wait_for(lock, slice);
    left -= std::min(Clock::now() - before, slice);
  }
}

}  // namespace host
