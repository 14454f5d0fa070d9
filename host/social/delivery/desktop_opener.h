#pragma once

#include <functional>
#include <optional>
#include <string>

namespace host::social {

/// Is there a desktop around the phone, whose programs can be opened?
enum class Desktop { Absent, Present };

/// As the environment says: a display of X11 or of Wayland is the desktop's.
Desktop desktop_of_environment();

/// Has the desktop's own opener, `xdg-open`, open an address in the program that the user has
/// chosen for it. The opener is a process of its own that nothing here waits for; no shell sees the
/// address. Gives the reason when it cannot be started. When it was started and then failed, that
/// is logged and `on_failure` is called from the main run loop.
std::optional<std::string> open_on_desktop(const std::string& address,
                                           std::function<void()> on_failure = {});

}  // namespace host::social
