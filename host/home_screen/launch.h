#pragma once

#include "host/home_screen/process_options.h"

namespace host::launcher {

/// The home screen's process and application, by which extensions are admitted.
inline constexpr const char* kHomeScreen = "SpringBoard";

/// Makes this process the phone of `options`: the platform's classes, the music, the extensions and
/// then the home screen's application. Needs the main run loop, the device's root, the current
/// device and the layer service.
void launch_home_screen(const ProcessOptions& options);

}  // namespace host::launcher
