#pragma once

#include <cstdint>

#include "host/home_screen/process_options.h"

namespace host::launcher {

/// Starts the phone's music: the user's folders, or the demo music when none were given. The phone
/// also starts without music; the reason is logged.
void start_music(const ProcessOptions& options);
void stop_music();

/// Changes with the songs of the phone; 0 when there is no music.
std::uint64_t music_library_number();

}  // namespace host::launcher
