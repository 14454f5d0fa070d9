#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "host/media/queue_player.h"
#include "host/media_player/media_options.h"
#include "host/runtime/run_loop.h"

namespace host::media_player {

/// The player on the main loop: drives the engine, tells the system's objects of changes, and
/// records what was last reported.
class Playback {
 public:
  Playback(std::unique_ptr<media::Player> player, media::PlayerPace pace,
           media::QueuePlayer::FileOf file_of);
  ~Playback();
  Playback(const Playback&) = delete;
  Playback& operator=(const Playback&) = delete;

  /// Called after a change of queue, song, state, position or volume.
  std::function<void()> on_change;
  /// Called after such a change when the loaded song goes on at another place: it was sought, or
  /// begins again. A song that follows another begins at its start without this.
  std::function<void()> on_jump;

  void set_queue(media::SongList songs);
  void set_repeat(media::Repeat repeat);
  void set_shuffles(bool shuffles);
  bool set_current(std::uint64_t id) { return queue_.set_current(id); }
  void prepare() { queue_.prepare(); }
  bool resume_paused(std::uint64_t id, double seconds);
  void play() { queue_.play(); }
  void pause() { queue_.pause(); }
  void stop() { queue_.stop(); }
  void next() { queue_.next(); }
  void previous() { queue_.previous(); }
  void seek(double seconds);

  media::PlaybackState state() const { return queue_.state(); }
  /// The loaded song, playing or not.
  std::optional<std::uint64_t> song() const { return queue_.loaded(); }
  const media::PlayQueue& queue() const { return queue_.queue(); }
  /// The position at this moment, in seconds.
  double position() const { return song() ? queue_.position() : 0; }
  /// The duration in seconds; 0 until the engine knows it.
  double duration() const { return song() ? queue_.duration() : 0; }

  /// The song's position when the player last reported something. No two reports have the same
  /// value, as no two measurements of a real player do: by comparing values, an observer notices a
  /// report even when one song follows another from its start.
  double reported_elapsed() const { return reported_elapsed_; }

  double volume() const { return player_->volume(); }
  /// Sets the volume, clamped to 0 and 1.
  void set_volume(double volume);

  void set_replay_gain(media::ReplayGain gain) { player_->set_replay_gain(gain); }

  media::EngineState engine() { return player_->engine(); }

 private:
  void report();
  void state_changed(media::PlaybackState state);
  void song_changed();
  void follow_end();
  void report_jump();
  void changed() const {
    if (on_change) on_change();
  }

  std::unique_ptr<media::Player> player_;
  media::PlayerPace pace_;
  media::QueuePlayer queue_;
  double reported_elapsed_ = 0;
  std::uint32_t reports_ = 0;
  RunLoop::Id watch_ = 0;
  RunLoop::Id turn_ = 0;
  RunLoop::Id end_ = 0;
};

}  // namespace host::media_player
