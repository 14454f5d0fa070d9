#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/media/play_queue.h"
#include "host/media/player.h"

namespace host::media {

enum class PlaybackState { stopped, playing, paused };

// Plays a queue: one song after the other, songs that cannot be played passed over, stopped at the
// end. This is what the system's music player speaks to. Main thread only; the player must outlive
// it.
class QueuePlayer final : private PlayerListener {
 public:
  // Answers the path of a song, or nothing when the library does not hold it any more.
  using PathOf = std::function<std::optional<std::string>(std::uint64_t)>;

  QueuePlayer(Player& player, PathOf path_of);
  ~QueuePlayer() override;
  QueuePlayer(const QueuePlayer&) = delete;
  QueuePlayer& operator=(const QueuePlayer&) = delete;

  // Called after the change, only when there is one.
  std::function<void()> on_song_change;
  std::function<void(PlaybackState)> on_state_change;

  void set_queue(std::vector<std::uint64_t> ids);
  // Makes the song the current one and goes on playing or waiting. False when it is not queued.
  bool set_current(std::uint64_t id);

  // Makes ready what `play` would play: the first song when none is current.
  void prepare();
  // Makes the song the current one, paused at `seconds`: how an earlier process left it. False when
  // it is not queued or the library does not hold it any more.
  bool resume_paused(std::uint64_t id, double seconds);
  // Begins with the first song when none is current.
  void play();
  void pause();
  void stop();
  // Past the last song everything stops.
  void next();
  // The song before the first is the first, from its start.
  void previous();
  void restart() { player_.seek(0); }
  void seek(double seconds) { player_.seek(seconds); }

  std::optional<std::uint64_t> current() const { return queue_.current(); }
  // The song that the player holds, playing or not.
  std::optional<std::uint64_t> loaded() const { return loaded_; }
  const PlayQueue& queue() const { return queue_; }
  PlaybackState state() const { return state_; }
  double position() const { return player_.position(); }
  double duration() const { return player_.duration(); }

 private:
  void player_did_reach_end() override;
  void player_did_fail(const std::string& path, const std::string& reason) override;

  void load_current();
  void set_state(PlaybackState state);
  void come_to_the_end();
  void tell_song_change();

  Player& player_;
  PathOf path_of_;
  PlayQueue queue_;
  PlaybackState state_ = PlaybackState::stopped;
  std::optional<std::uint64_t> loaded_;
  std::optional<std::uint64_t> told_;  // The song that was last told.
};

}  // namespace host::media
