#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/media/mpv_player.h"
#include "host/media/scan.h"

namespace host::media_player {

/// When the files are first looked at.
enum class FirstScan {
  kBeforeStart,  // The library is whole when the service has started.
  kBeside,       // What the last scan left is there at once; the rest follows beside the screen.
  kNever,        // What the last scan left is all: another process looks at the files.
};

/// Music that is made when the user has given none.
struct DemoMusic {
  std::string folder;  // Where it is kept from the first run on.
  std::string covers;  // Holds `cover-1.png` and so on.
};

struct MediaProgress {
  enum class Stage { kMakingMusic, kReadingFiles, kReady };

  Stage stage = Stage::kReady;
  int made = 0;  // Songs made, of `to_make`.
  int to_make = 0;
  media::ScanProgress files;
  std::size_t songs = 0;  // In the library at this moment.
};

/// All paths are of this machine.
struct MediaOptions {
  std::vector<std::string> music_folders;
  /// Made first, and played besides the folders, when it is given.
  std::optional<DemoMusic> demo;
  std::string index_path;
  /// On a stepped clock the first scan always comes before the start, and every turn of the loop
  /// brings the player up to the clock.
  media::PlayerPace pace = media::PlayerPace::real;
  FirstScan first_scan = FirstScan::kBeside;
  /// Empty lets the engine choose; "null" plays in real time without a sound device.
  std::string audio_output;
  /// Where queue, song and volume are kept from one process to the next; empty forgets them.
  std::string memory_path;
  /// Called on the main thread.
  std::function<void(const MediaProgress&)> on_progress;
};

/// Where the demo music belongs when nobody says otherwise: in the user's data folder.
std::string default_demo_folder();

}  // namespace host::media_player
