#include "host/home_screen/music.h"

#include <filesystem>

#include "host/foundation/device_paths.h"
#include "host/launcher/installation.h"
#include "host/media_player/exports.h"
#include "host/media_player/media_service.h"
#include "host/runtime/log.h"

namespace host::launcher {
namespace {

using media_player::MediaOptions;
using media_player::MediaProgress;

constexpr std::size_t kFilesBetweenLines = 1000;
constexpr int kSongsBetweenLines = 10;

/// Logs the progress of the work from time to time, and its end.
class ProgressLines {
 public:
  void operator()(const MediaProgress& progress) {
    switch (progress.stage) {
      case MediaProgress::Stage::kMakingMusic:
        if (progress.made % kSongsBetweenLines == 0 || progress.made == progress.to_make)
          spdlog::info("making the demo music: {} of {} songs", progress.made, progress.to_make);
        break;
      case MediaProgress::Stage::kReadingFiles:
        if (progress.files.seen >= said_files_ + kFilesBetweenLines) {
          said_files_ = progress.files.seen;
          spdlog::info("reading music: {} files seen, {} read, {} skipped", progress.files.seen,
                       progress.files.read, progress.files.skipped);
        }
        break;
      case MediaProgress::Stage::kReady:
        spdlog::info("{} songs ({} files skipped)", progress.songs, progress.files.skipped);
        break;
    }
  }

 private:
  std::size_t said_files_ = 0;
};

}  // namespace

void start_music(const ProcessOptions& options) {
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
  std::error_code ignored;
  if (!std::filesystem::exists(media.index_path, ignored))
    media.first_scan = media_player::FirstScan::kBeforeStart;
  media.watches_folders = !options.headless;
  media.pace = options.stepped ? media::PlayerPace::stepped : media::PlayerPace::real;
  if (options.headless) media.audio_output = "null";
  media.on_progress = ProgressLines();
  if (const auto problem = media_player::MediaService::start(std::move(media)))
    spdlog::error("there is no music: {}", *problem);
}

std::uint64_t music_library_number() {
  const auto* service = media_player::MediaService::current();
  return service ? service->library_number() : 0;
}

void stop_music() {
  media_player::MediaService::stop();
}

}  // namespace host::launcher
