#include "host/applications/program/shared_library.h"

#include "host/foundation/device_paths.h"
#include "host/media_player/media_service.h"
#include "host/runtime/log.h"

namespace host::application {

void open_shared_library(bool is_stepped) {
  media_player::MediaOptions options;
  options.index_path = foundation::path_on_this_machine("/var/mobile/Media/library.sqlite");
  options.first_scan = media_player::FirstScan::kNever;
  options.pace = is_stepped ? media::PlayerPace::stepped : media::PlayerPace::real;
  options.audio_output = "null";
  if (const auto problem = media_player::MediaService::start(std::move(options)))
    spdlog::error("there is no music: {}", *problem);
}

}  // namespace host::application
