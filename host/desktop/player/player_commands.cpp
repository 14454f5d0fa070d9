#include "host/desktop/player/player_commands.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "host/basics/ascii.h"
#include "host/media/playable_path.h"
#include "host/media_player/playback_state.h"
#include "platform/MediaPlayer/MPMusicPlayerController.h"
#include "platform/SpringBoard/SBMediaController.h"

namespace host::desktop {
namespace {

SBMediaController media() {
  return SBMediaController::sharedInstance();
}

MPMusicPlayerController player() {
  return MPMusicPlayerController::iPodMusicPlayer();
}

/// The path in the address of a file of this machine; empty in any other.
std::string path_in(std::string_view address) {
  for (const std::string_view beginning : {"file://localhost/", "file:///", "file:/"}) {
    if (address.starts_with(beginning)) return bytes_of_ascii(address.substr(beginning.size() - 1));
  }
  return {};
}

}  // namespace

void PlayerCommands::play() {
  if (!state().is_playing() && state().can_play) media().togglePlayPause();
}

void PlayerCommands::pause() {
  if (state().is_playing()) player().pause();
}

void PlayerCommands::toggle() {
  if (state().is_playing() || state().can_play) media().togglePlayPause();
}

void PlayerCommands::stop() {
  player().stop();
}

void PlayerCommands::next() {
  if (state().can_go_next) media().changeTrack(1);
}

void PlayerCommands::previous() {
  if (state().can_go_previous) media().changeTrack(-1);
}

void PlayerCommands::move_by(std::int64_t microseconds) {
  if (!state().can_seek()) return;
  const std::int64_t position = now_playing_.position();
  const std::int64_t rest = state().song->microseconds - position;
  if (microseconds > rest) return next();
  move_to(microseconds < -position ? 0 : position + microseconds);
}

void PlayerCommands::move_to(std::int64_t microseconds) {
  if (!state().can_seek() || microseconds < 0 || microseconds > state().song->microseconds) return;
  player().setCurrentPlaybackTime(static_cast<double>(microseconds) * 1e-6);
}

void PlayerCommands::set_volume(double volume) {
  if (std::isfinite(volume)) media().setVolume(static_cast<float>(std::clamp(volume, 0.0, 1.0)));
}

void PlayerCommands::set_rate(double rate) {
  if (rate == 0) pause();
}

void PlayerCommands::set_repeat(media::Repeat repeat) {
  objc::send<void>(player(), "setRepeatMode:"_sel, media_player::platform_repeat(repeat));
}

void PlayerCommands::set_shuffles(bool shuffles) {
  objc::send<void>(player(), "setShuffleMode:"_sel,
                   shuffles ? MPMusicShuffleModeSongs : MPMusicShuffleModeOff);
}

std::string PlayerCommands::open(const std::string& address) {
  const std::string named = path_in(address);
  if (named.empty()) return address + " is not the address of a file";
  const std::string reason = media::reason_not_to_play(named);
  if (!reason.empty()) return named + " " + reason;
  const std::string path = media::settled_path(named);
  media_player::MediaService& service = now_playing_.service();
  const auto tracks = service.items()->library().tracks();
  const auto found = std::ranges::find(tracks, std::string_view(path), &media::Track::path);
  if (found == tracks.end()) {
    service.play_files({path});
    return {};
  }
  const MPMediaItem item = service.items()->item_with_id(found->id);
  player().setQueueWithQuery(MPMediaQuery::alloc().init().autorelease());
  player().setNowPlayingItem(item);
  player().play();
  return {};
}

}  // namespace host::desktop
