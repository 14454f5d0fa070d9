#include "host/home_screen/music.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "host/foundation/device_paths.h"
#include "host/home_screen/progress_lines.h"
#include "host/launcher/control_socket.h"
#include "host/launcher/handed_files.h"
#include "host/launcher/installation.h"
#include "host/media_player/exports.h"
#include "host/media_player/media_service.h"
#include "host/runtime/progress_line.h"

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

using media_player::MediaOptions;

/// Exists while the songs are read for the first time: what an interrupted reading leaves is a part
/// of them only.
fs::path mark_of_first_reading(const std::string& index) {
  return index + ".being-made";
}

bool knows_the_songs(const std::string& index) {
  std::error_code ignored;
  return fs::exists(index, ignored) && !fs::exists(mark_of_first_reading(index), ignored);
}

void mark_first_reading(const std::string& index) {
  const fs::path mark = mark_of_first_reading(index);
  std::error_code ignored;
  fs::create_directories(mark.parent_path(), ignored);
  static_cast<void>(std::ofstream(mark));
}

}  // namespace

MusicStart start_music(const ProcessOptions& options, OnMusicProgress on_progress) {
  MediaOptions media;
  for (const auto& folder : options.music)
    media.music_folders.push_back(folder.string());
  if (media.music_folders.empty()) {
    media.demo = {media_player::default_demo_folder(), find_installation().covers.string()};
  }
  media.index_path = foundation::path_on_this_machine("/var/mobile/Media/library.sqlite");
  media.marks_path =
      foundation::path_on_this_machine("/var/mobile/Library/Caches/music/SpringBoard");
  media.memory_path = foundation::path_on_this_machine("/var/mobile/Media/playback.plist");
  // The home screen's extensions read the library once, at start: a new phone must have one by
  // then. On later starts the result of the last scan is available immediately.
  const bool is_first = !knows_the_songs(media.index_path);
  if (is_first) media.first_scan = media_player::FirstScan::kAwaited;
  if (is_first) mark_first_reading(media.index_path);
  media.watches_folders = !options.headless;
  media.pace = options.stepped ? media::PlayerPace::stepped : media::PlayerPace::real;
  if (options.headless) media.audio_output = "null";
  media.on_progress = [lines = ProgressLines(has_progress_line()), index = media.index_path,
                       on_progress = std::move(on_progress)](const auto& progress) mutable {
    std::error_code ignored;
    if (progress.stage == media_player::MediaProgress::Stage::kReady)
      fs::remove(mark_of_first_reading(index), ignored);
    lines(progress);
    if (on_progress) on_progress(progress);
  };
  media_player::MediaService::start(std::move(media));
  return is_first ? MusicStart::kAwaited : MusicStart::kReady;
}

void play_files(std::vector<std::string> paths) {
  auto* service = media_player::MediaService::current();
  if (service && !paths.empty()) service->play_files(std::move(paths));
}

void play_handed_files() {
  const char* socket = std::getenv(kControlSocketVariable);
  if (socket) play_files(take_handed_files(fs::path(socket).parent_path()));
}

std::uint64_t music_library_number() {
  const auto* service = media_player::MediaService::current();
  return service ? service->library_number() : 0;
}

void stop_music() {
  media_player::MediaService::stop();
}

}  // namespace host::launcher
