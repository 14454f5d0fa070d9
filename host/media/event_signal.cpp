#include "host/media/event_signal.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace host::media {

EventSignal::EventSignal() : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

EventSignal::~EventSignal() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

void EventSignal::raise() {
  const std::uint64_t one = 1;
  [[maybe_unused]] const auto written = ::write(descriptor_, &one, sizeof one);
}

void EventSignal::clear() {
  std::uint64_t count = 0;
  [[maybe_unused]] const auto got = ::read(descriptor_, &count, sizeof count);
}

}  // namespace host::media
