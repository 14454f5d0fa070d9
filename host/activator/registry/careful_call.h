#pragma once

#include <string_view>
#include <utility>

#include "host/runtime/log.h"

namespace host::activator {

/// Calls into other people's code: whatever it throws ends here, with one line of the log, and the
/// answer is then empty.
template <class Call>
auto call_carefully(std::string_view listener, std::string_view what, Call call)
    -> decltype(call()) {
  try {
    return call();
  } catch (...) {
    // The platform's exceptions are not C++ objects, so there is nothing more to read of them.
    spdlog::error("gesture listener {} threw an exception when it was {}", listener, what);
    return decltype(call())();
  }
}

}  // namespace host::activator
