#pragma once

#include <memory>

#include "bench/screen/viewer.h"
#include "host/screen/input.h"
#include "host/screen/screen.h"

namespace bench {

/// Shows the phone's screen to viewers.
class ScreenServer {
 public:
  virtual ~ScreenServer() = default;
  virtual host::screen::Screen& screen() = 0;
  virtual Address address() const = 0;
};

}  // namespace bench
