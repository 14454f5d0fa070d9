#pragma once

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

#include "host/basics/descriptor.h"

namespace host {

/// A file descriptor that becomes readable when there is work for the main thread. Raising it is
/// safe from any thread and never blocks.
class EventSignal {
 public:
  int descriptor() const { return descriptor_.get(); }

  void raise() {
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(descriptor(), &one, sizeof one);
  }
  void clear() {
    std::uint64_t count = 0;
    [[maybe_unused]] const auto got = ::read(descriptor(), &count, sizeof count);
  }

 private:
  Descriptor descriptor_{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
};

}  // namespace host
