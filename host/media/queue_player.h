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

// Where a song's sound is to be had.
struct SongFile {
  std::string path;
  std::string refusal;  // Why it cannot be played, said of the song; empty when it can.
};

// Plays a queue: one song after the other, songs that cannot be played passed over in the direction
// of the way, with one line in the log, stopped at the end. This is what the system's music player
// speaks to. Main thread only; the player must outlive it.
class QueuePlayer final : private PlayerListener {
 public:
  using FileOf = std::function<SongFile(std::uint64_t)>;

  QueuePlayer(Player& player, FileOf file_of);
  ~QueuePlayer() override;
  QueuePlayer(const QueuePlayer&) = delete;
  QueuePlayer& operator=(const QueuePlayer&) = delete;

  // Called after the change, only when there is one.
  std::function<void()> on_song_change;
  std::function<void(PlaybackState)> on_state_change;

  void set_queue(SongList ids);
  // Makes the song, or the first after it that can be played, the current one and goes on playing
  // or waiting. False when it is not queued.
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
  // The song before the first is the first, from its start; the same is true of the first that can
  // be played.
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

  enum class Way { forwards, backwards };

  void load_current(Way way = Way::forwards);
  std::optional<std::uint64_t> step(Way& way);
  void set_state(PlaybackState state);
  void come_to_the_end();
  void tell_song_change();

  Player& player_;
  FileOf file_of_;
  PlayQueue queue_;
  PlaybackState state_ = PlaybackState::stopped;
  std::optional<std::uint64_t> loaded_;
  std::optional<std::uint64_t> told_;  // The song that was last told.
};

}  // namespace host::media
