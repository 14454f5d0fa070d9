#pragma once

#include <functional>
#include <optional>
#include <string>

namespace host::social {

/// Whether the phone runs on a desktop whose programs can be opened.
enum class Desktop { Absent, Present };

/// Determined from the environment: an X11 or Wayland display means a desktop.
Desktop desktop_of_environment();

/// Opens an address in the user's preferred program, through the desktop's opener `xdg-open`. The
/// opener runs as a separate process, started without a shell, and this function does not wait for
/// it. Returns the reason when it cannot be started. If it fails later, that is logged and
/// `on_failure` is called from the main run loop.
std::optional<std::string> open_on_desktop(const std::string& address,
                                           std::function<void()> on_failure = {});

}  // namespace host::social
