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

/// The player on the main loop: keeps the engine going, tells the system's objects what changed,
/// and knows what was last reported.
class Playback {
 public:
  Playback(std::unique_ptr<media::Player> player, media::PlayerPace pace,
           media::QueuePlayer::FileOf file_of);
  ~Playback();
  Playback(const Playback&) = delete;
  Playback& operator=(const Playback&) = delete;

  /// Called after queue, song, state, position or volume was changed.
  std::function<void()> on_change;

  void set_queue(media::SongList songs);
  bool set_current(std::uint64_t id);
  void prepare() { queue_.prepare(); }
  bool resume_paused(std::uint64_t id, double seconds);
  void play() { queue_.play(); }
  void pause() { queue_.pause(); }
  void stop() { queue_.stop(); }
  void next() { queue_.next(); }
  void previous();
  void seek(double seconds);

  media::PlaybackState state() const { return queue_.state(); }
  /// The song that is loaded, playing or not.
  std::optional<std::uint64_t> song() const { return queue_.loaded(); }
  const media::PlayQueue& queue() const { return queue_.queue(); }
  /// Seconds, at this moment.
  double position() const { return song() ? queue_.position() : 0; }
  /// Seconds; 0 until the engine knows.
  double duration() const { return song() ? queue_.duration() : 0; }

  /// Where the song was when the player last reported something. Two reports are never the same
  /// number, as two measurements of a sounding player never are: whoever compares them sees that
  /// there was news even when one song follows another from its start.
  double reported_elapsed() const { return reported_elapsed_; }

  double volume() const { return player_->volume(); }
  /// Cut to 0 and 1.
  void set_volume(double volume);

  media::EngineState engine() { return player_->engine(); }

 private:
  void report();
  void hear_state(media::PlaybackState state);
  void hear_song();
  void follow_end();
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
