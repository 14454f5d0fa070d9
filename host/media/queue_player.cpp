#include "host/media/queue_player.h"

#include <fmt/core.h>

#include <utility>

#include "host/media/log.h"

namespace host::media {

QueuePlayer::QueuePlayer(Player& player, PathOf path_of)
    : player_(player), path_of_(std::move(path_of)) {
  player_.set_listener(this);
}

QueuePlayer::~QueuePlayer() {
  player_.set_listener(nullptr);
}

void QueuePlayer::set_queue(std::vector<std::uint64_t> ids) {
  queue_.set_tracks(std::move(ids));
  if (queue_.current() || !loaded_) return;
  // The song that plays is not in the new queue: it is over.
  stop();
  tell_song_change();
}

bool QueuePlayer::set_current(std::uint64_t id) {
  if (!queue_.select(id)) return false;
  load_current();
  return true;
}

void QueuePlayer::prepare() {
  if (!queue_.current() && !queue_.select_first()) return;
  if (loaded_ != queue_.current()) load_current();
}

bool QueuePlayer::resume_paused(std::uint64_t id, double seconds) {
  if (!path_of_(id) || !set_current(id)) return false;
  player_.pause();
  player_.seek(seconds);
  set_state(PlaybackState::paused);
  return true;
}

void QueuePlayer::play() {
  prepare();
  if (!loaded_) return;
  player_.play();
  set_state(PlaybackState::playing);
}

void QueuePlayer::pause() {
  if (state_ != PlaybackState::playing) return;
  player_.pause();
  set_state(PlaybackState::paused);
}

void QueuePlayer::stop() {
  player_.stop();
  loaded_.reset();
  set_state(PlaybackState::stopped);
}

void QueuePlayer::next() {
  if (!queue_.current()) return;
  if (queue_.next()) {
    load_current();
  } else {
    come_to_the_end();
  }
}

void QueuePlayer::previous() {
  if (queue_.previous()) load_current();
}

void QueuePlayer::player_did_reach_end() {
  next();
}

void QueuePlayer::player_did_fail(const std::string& path, const std::string& reason) {
  log_warning(fmt::format("{} cannot be played ({}); the next song follows", path, reason));
  next();
}

void QueuePlayer::load_current() {
  while (const auto id = queue_.current()) {
    if (const auto path = path_of_(*id)) {
      loaded_ = id;
      player_.load(*path);
      return tell_song_change();
    }
    queue_.next();
  }
  come_to_the_end();
}

void QueuePlayer::come_to_the_end() {
  queue_.clear_selection();
  stop();
  tell_song_change();
}

void QueuePlayer::set_state(PlaybackState state) {
  if (std::exchange(state_, state) != state && on_state_change) on_state_change(state);
}

void QueuePlayer::tell_song_change() {
  if (std::exchange(told_, queue_.current()) != queue_.current() && on_song_change) {
    on_song_change();
  }
}

}  // namespace host::media
