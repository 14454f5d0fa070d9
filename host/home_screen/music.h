#pragma once

#include "host/home_screen/process_options.h"

namespace host::launcher {

/// Starts the phone's music: the user's folders, or the demo music where none was given. Without
/// music the phone still starts; the reason is in the log.
void start_music(const ProcessOptions& options);
void stop_music();

}  // namespace host::launcher
