#pragma once

#include "host/home_screen/process_options.h"

namespace host::launcher {

/// The names of the home screen's process and application, which the extensions' filters match.
inline constexpr const char* kHomeScreen = "SpringBoard";

/// Turns this process into the phone described by `options`: starts the platform's classes, the
/// music, the extensions, and then the home screen's application. Requires the main run loop, the
/// device's root, the current device and the layer service. The loop turns while a new phone reads
/// its music; returns false when it was stopped then.
bool launch_home_screen(const ProcessOptions& options);

}  // namespace host::launcher
