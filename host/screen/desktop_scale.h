#pragma once

#include <string_view>

namespace host::screen {

/// How many of the window's units the desktop uses for what was one pixel on an unscaled display.
/// 1 where the desktop scales windows itself.
double desktop_scale();

/// Reads the scale from the display's resources, where desktops keep the resolution for text; 0
/// when they do not tell.
double scale_of_resources(std::string_view resources);

}  // namespace host::screen
