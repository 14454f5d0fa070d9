#include "host/media/cover_decoder.h"

namespace host::media {

void CoverDecoder::request(Request request) {
  {
    const std::lock_guard lock{mutex_};
    waiting_.push_back(std::move(request));
  }
  has_work_.notify_one();
  if (!thread_.joinable()) {
    thread_ = std::jthread{[this](const std::stop_token& stop) { run(stop); }};
  }
}

std::optional<CoverDecoder::Decoded> CoverDecoder::take() {
  const std::lock_guard lock{mutex_};
  if (done_.empty()) {
    signal_.clear();
    return std::nullopt;
  }
  Decoded decoded = std::move(done_.front());
  done_.pop_front();
  return decoded;
}

void CoverDecoder::run(const std::stop_token& stop) {
  std::unique_lock lock{mutex_};
  while (has_work_.wait(lock, stop, [this] { return !waiting_.empty(); })) {
    if (stop.stop_requested()) return;
    Request request = std::move(waiting_.back());
    waiting_.pop_back();
    lock.unlock();
    auto picture = decode_cover(request.cover, request.longest_side);
    lock.lock();
    done_.push_back({std::move(request),
                     picture ? std::make_shared<const Picture>(std::move(*picture)) : nullptr});
    signal_.raise();
  }
}

}  // namespace host::media
