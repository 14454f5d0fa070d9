#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "host/home_screen/process_options.h"
#include "host/media_player/media_options.h"

namespace host::launcher {

using OnMusicProgress = std::function<void(const media_player::MediaProgress&)>;

/// Whether the songs are there already, or come while the loop turns, up to the progress that says
/// that they are ready.
enum class MusicStart { kReady, kAwaited };

/// Starts the phone's music: the user's folders, or the demo music when none were given. The phone
/// also starts without music; the reason is logged.
MusicStart start_music(const ProcessOptions& options, OnMusicProgress on_progress);
void stop_music();

/// Plays files and the songs of folders, one after another.
void play_files(std::vector<std::string> paths);
/// The same with those that a launcher has handed over.
void play_handed_files();

/// Changes with the songs of the phone; 0 when there is no music.
std::uint64_t music_library_number();

}  // namespace host::launcher
