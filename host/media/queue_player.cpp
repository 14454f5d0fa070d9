#include "host/media/queue_player.h"

#include <fmt/core.h>

#include <filesystem>
#include <utility>

#include "host/media/log.h"

namespace host::media {
namespace {

// Any number of skipped songs in a row is one line.
void log_skipped(const std::string& first_refusal, std::size_t songs) {
  if (songs == 1) log_warning(fmt::format("{}; it is skipped", first_refusal));
  if (songs > 1) {
    log_warning(fmt::format("{}; it and {} more are skipped", first_refusal, songs - 1));
  }
}

// No song comes before the first of a queue that ends, so a search backwards that found no playable
// song turns around and ends at the song where it started.
std::optional<std::uint64_t> step(PlayQueue& queue, bool& backwards) {
  if (queue.index() == 0u && !queue.repeats()) backwards = false;
  return backwards ? queue.previous() : queue.next();
}

}  // namespace

QueuePlayer::QueuePlayer(Player& player, FileOf file_of, std::uint32_t seed)
    : player_(player), file_of_(std::move(file_of)), queue_(seed) {
  player_.set_listener(this);
}

QueuePlayer::~QueuePlayer() {
  player_.set_listener(nullptr);
}

void QueuePlayer::set_queue(SongList ids) {
  withdraw_next();
  queue_.set_tracks(std::move(ids));
  if (queue_.current() || !loaded_) return;
  // The playing song is not in the new queue, so it ends.
  stop();
  report_song_change();
}

void QueuePlayer::set_repeat(Repeat repeat) {
  withdraw_next();
  queue_.set_repeat(repeat);
}

void QueuePlayer::set_shuffles(bool shuffles) {
  withdraw_next();
  queue_.set_shuffles(shuffles);
}

bool QueuePlayer::set_current(std::uint64_t id) {
  if (!queue_.select(id)) return false;
  failures_ = 0;
  load_current();
  return true;
}

void QueuePlayer::prepare() {
  if (!queue_.current() && !queue_.select_first()) return;
  if (loaded_ != queue_.current()) load_current();
}

bool QueuePlayer::resume_paused(std::uint64_t id, double seconds) {
  if (!file_of_(id).refusal.empty() || !set_current(id)) return false;
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
  next_.reset();
  loaded_.reset();
  set_state(PlaybackState::stopped);
}

void QueuePlayer::next() {
  failures_ = 0;
  if (queue_.current()) go_on(queue_.next());
}

void QueuePlayer::previous() {
  failures_ = 0;
  if (queue_.previous()) load_current(Direction::backwards);
}

void QueuePlayer::player_did_reach_end() {
  failures_ = 0;
  if (queue_.current()) go_on(queue_.follow());
}

void QueuePlayer::player_did_fail(const std::string& path, const std::string& reason) {
  warn_user(fmt::format("{} cannot be played ({}); the next song starts", path, reason),
            fmt::format("Cannot play {}", std::filesystem::path(path).filename().string()));
  const bool is_hopeless = ++failures_ >= queue_.tracks().size();
  if (queue_.current()) go_on(is_hopeless ? std::nullopt : queue_.next());
}

void QueuePlayer::go_on(std::optional<std::uint64_t> song) {
  if (song) {
    load_current();
  } else {
    finish_queue();
  }
}

QueuePlayer::Playable QueuePlayer::find_playable(PlayQueue from, Direction direction) const {
  Playable found;
  bool backwards = direction == Direction::backwards;
  const bool is_round = from.repeats();
  for (auto id = from.current(); id; id = step(from, backwards)) {
    if (is_round && found.refused == from.tracks().size()) {
      from.clear_selection();
      break;
    }
    SongFile file = file_of_(*id);
    if (file.refusal.empty()) {
      found.path = std::move(file.path);
      break;
    }
    if (found.refused++ == 0) found.first_refusal = std::move(file.refusal);
  }
  found.queue = std::move(from);
  return found;
}

void QueuePlayer::arrive(Playable playable) {
  log_skipped(playable.first_refusal, playable.refused);
  queue_ = std::move(playable.queue);
  loaded_ = queue_.current();
}

void QueuePlayer::load_current(Direction direction) {
  next_.reset();
  const auto before = loaded_;
  Playable playable = find_playable(queue_, direction);
  const std::string path = playable.path;
  arrive(std::move(playable));
  if (!loaded_) return finish_queue();
  player_.load(path);
  report_arrival(before);
}

void QueuePlayer::offer_next() {
  if (next_ || !loaded_) return;
  PlayQueue rest = queue_;
  if (!rest.follow()) return;
  next_ = find_playable(std::move(rest), Direction::forwards);
  player_.follow_with(next_->path);
}

void QueuePlayer::withdraw_next() {
  if (!std::exchange(next_, std::nullopt)) return;
  player_.follow_with({});
}

void QueuePlayer::player_did_continue() {
  if (!next_) return;
  failures_ = 0;
  const auto before = loaded_;
  arrive(*std::exchange(next_, std::nullopt));
  report_arrival(before);
}

void QueuePlayer::player_did_lose_device() {
  if (state_ != PlaybackState::playing) return;
  warn_user("the sound device has gone: the music is paused", "No sound device");
  pause();
}

void QueuePlayer::finish_queue() {
  queue_.clear_selection();
  stop();
  report_song_change();
}

void QueuePlayer::set_state(PlaybackState state) {
  if (std::exchange(state_, state) != state && on_state_change) on_state_change(state);
}

void QueuePlayer::report_song_change() {
  if (std::exchange(reported_, queue_.current()) != queue_.current() && on_song_change) {
    on_song_change();
  }
}

void QueuePlayer::report_arrival(std::optional<std::uint64_t> before) {
  report_song_change();
  if (before == loaded_ && on_restart) on_restart();
}

}  // namespace host::media
