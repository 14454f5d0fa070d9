#include "host/applications/program/shared_library.h"

#include <filesystem>
#include <utility>

#include "host/foundation/device_paths.h"
#include "host/media/index.h"
#include "host/media_player/media_service.h"

namespace host::application {
namespace {

std::string shared_index() {
  return foundation::path_on_this_machine("/var/mobile/Media/library.sqlite");
}

}  // namespace

void open_shared_library(bool is_stepped) {
  media_player::MediaOptions options;
  options.index_path = shared_index();
  options.marks_path = foundation::path_on_this_machine("/var/mobile/Library/Caches/music/Music");
  options.first_scan = media_player::FirstScan::kNever;
  options.pace = is_stepped ? media::PlayerPace::stepped : media::PlayerPace::real;
  options.audio_output = "null";
  media_player::MediaService::start(std::move(options));
}

void follow_shared_library(std::uint64_t library_number) {
  static std::uint64_t known = 0;
  const std::uint64_t before = std::exchange(known, library_number);
  if (before == 0 || before == library_number) return;
  if (auto* service = media_player::MediaService::current()) service->reload_library();
}

// Opening a missing index would create an empty one.
std::size_t count_of_shared_songs() {
  const std::string index = shared_index();
  std::error_code ignored;
  return std::filesystem::exists(index, ignored) ? media::Index(index).count_songs() : 0;
}

}  // namespace host::application
