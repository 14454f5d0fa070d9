#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/media/mpv_player.h"
#include "host/media/scan.h"

namespace host::media_player {

/// When the files are first scanned.
enum class FirstScan {
  kBeforeStart,  // The library is complete when the service has started.
  kAwaited,      // The library arrives when the first scan is over; the service starts without.
  kBeside,       // The result of the last scan is available at once; the new scan runs in the
                 // background.
  kNever,        // The result of the last scan is used: another process scans the files.
};

/// Music to make when the user has none.
struct DemoMusic {
  std::string folder;  // Where it is kept from the first run on.
  std::string covers;  // Contains `cover-1.png` and so on.
};

struct MediaProgress {
  enum class Stage { kMakingMusic, kReadingFiles, kReady };

  Stage stage = Stage::kReady;
  int made = 0;  // The number of songs made so far, out of `to_make`.
  int to_make = 0;
  media::ScanProgress files;
  std::size_t songs = 0;  // In the library at this moment.

  /// Songs that are made, or looked at, so far.
  std::size_t done() const {
    return stage == Stage::kMakingMusic ? static_cast<std::size_t>(made) : files.seen;
  }
  /// Of how many; 0 while that is not known.
  std::size_t all() const {
    return stage == Stage::kMakingMusic ? static_cast<std::size_t>(to_make) : files.to_see;
  }
};

/// All paths are paths of this machine.
struct MediaOptions {
  std::vector<std::string> music_folders;
  /// If set, made first and played in addition to the folders.
  std::optional<DemoMusic> demo;
  std::string index_path;
  /// Where the file is named that is being read, in case it ends the process; empty means nowhere.
  std::string marks_path;
  /// With a stepped clock the first scan always precedes the start, and every turn of the loop
  /// advances the player to the clock's time.
  media::PlayerPace pace = media::PlayerPace::real;
  FirstScan first_scan = FirstScan::kBeside;
  /// Whether changes in the folders are noticed after the first scan.
  bool watches_folders = false;
  /// Empty lets the engine choose; "null" plays in real time without a sound device.
  std::string audio_output;
  /// Where queue, song and volume are stored between processes; empty means nowhere.
  std::string memory_path;
  /// Called on the main thread.
  std::function<void(const MediaProgress&)> on_progress;
};

/// Returns the default folder for the demo music, in the user's data folder.
std::string default_demo_folder();

}  // namespace host::media_player
