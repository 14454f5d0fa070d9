#pragma once

#include <optional>
#include <string>

#include "host/basics/descriptor.h"

namespace host::browser {

/// A socket that listens on this machine only, at a port that the system chooses. Empty, with
/// `errno` set, when the system refuses one.
Descriptor listen_on_loopback();

/// The address at which the socket listens, as in `http://127.0.0.1:8080/`. The token goes behind
/// the `#`, which a browser keeps to itself.
std::optional<std::string> link_to(int listener, const std::string& token);

}  // namespace host::browser
