#pragma once

#include <string>
#include <string_view>

namespace host::desktop {

/// In bytes; the desktop's widgets show less.
inline constexpr std::size_t kLongestBusText = 1000;

/// Returns a text of any origin as every bus takes it: valid UTF-8 on one line, without control
/// characters and without what is no character at all, cut after `kLongestBusText` bytes. A bus
/// disconnects a client that sends anything else.
std::string bus_text(std::string_view text);

}  // namespace host::desktop
