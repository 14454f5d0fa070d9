#pragma once

#include <string_view>
#include <utility>

#include "host/runtime/log.h"

namespace host::activator {

/// Calls into other people's code. An exception is caught and logged, and the result is then empty.
template <class Call>
auto call_catching(std::string_view listener, std::string_view what, Call call)
    -> decltype(call()) {
  try {
    return call();
  } catch (...) {
    // The platform's exceptions are not C++ objects, so no details can be read.
    spdlog::error("gesture listener {} threw an exception when it was {}", listener, what);
    return decltype(call())();
  }
}

}  // namespace host::activator
