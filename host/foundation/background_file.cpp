#include "host/foundation/background_file.h"

#include <utility>

#include "host/foundation/atomic_write.h"

namespace host::foundation {

BackgroundFile::~BackgroundFile() {
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  changed_.notify_one();
  if (thread_.joinable()) thread_.join();
}

void BackgroundFile::write(std::string bytes) {
  if (pace_ == Pace::kWaits) {
    failed_ = static_cast<bool>(write_atomically(path_, bytes));
    return;
  }
  {
    const std::lock_guard lock(mutex_);
    waiting_ = std::move(bytes);
  }
  changed_.notify_one();
  if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
}

bool BackgroundFile::is_writable() const {
  const std::lock_guard lock(mutex_);
  return !failed_;
}

void BackgroundFile::run() {
  std::unique_lock lock(mutex_);
  while (true) {
    changed_.wait(lock, [this] { return waiting_ || ends_; });
    if (!waiting_) return;
    const std::string bytes = *std::exchange(waiting_, std::nullopt);
    lock.unlock();
    const bool failed = static_cast<bool>(write_atomically(path_, bytes));
    lock.lock();
    failed_ = failed;
  }
}

}  // namespace host::foundation
