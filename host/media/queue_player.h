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

// Where to read a song's sound from.
struct SongFile {
  std::string path;
  std::string refusal;  // Why it cannot be played, naming the song; empty when it can.
};

// Plays a queue, one song after the other, and stops at the end of one that does not repeat, or
// when no song of it can be played. Songs that cannot be played are skipped in the direction of
// travel, with one line in the log. The system's music player is built on this class. Main thread
// only; the player must outlive it.
class QueuePlayer final : private PlayerListener {
 public:
  using FileOf = std::function<SongFile(std::uint64_t)>;

  // The seed is that of shuffled queues.
  QueuePlayer(Player& player, FileOf file_of, std::uint32_t seed = 1);
  ~QueuePlayer() override;
  QueuePlayer(const QueuePlayer&) = delete;
  QueuePlayer& operator=(const QueuePlayer&) = delete;

  // Called after a change, and only if something changed.
  std::function<void()> on_song_change;
  std::function<void(PlaybackState)> on_state_change;
  // Called when the song begins again, instead of a change.
  std::function<void()> on_restart;

  void set_queue(SongList ids);
  void set_repeat(Repeat repeat);
  void set_shuffles(bool shuffles);
  // Makes the song, or the next playable one after it, current and keeps playing or paused. Returns
  // false when it is not queued.
  bool set_current(std::uint64_t id);

  // Loads what `play` would play: the first song when none is current.
  void prepare();
  // Makes the song current, paused at `seconds`, as an earlier process left it. Returns false when
  // it is not queued or no longer in the library.
  bool resume_paused(std::uint64_t id, double seconds);
  // Starts with the first song when none is current.
  void play();
  void pause();
  void stop();
  // Stops after the last song, unless the queue repeats.
  void next();
  // From the first song, or the first playable one, starts it again, unless the queue repeats.
  void previous();
  // Lets the song that comes by itself follow the current one without a gap. Call it when the
  // current one is about to end; `withdraw_next` takes it back.
  void offer_next();
  void withdraw_next();
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
  void player_did_continue() override;
  void player_did_fail(const std::string& path, const std::string& reason) override;
  void player_did_lose_device() override;

  enum class Direction { forwards, backwards };
  // A place in the queue with a song that can be played.
  struct Playable {
    PlayQueue queue;
    std::string path;
    // What was skipped on the way.
    std::string first_refusal;
    std::size_t refused = 0;
  };

  Playable find_playable(PlayQueue from, Direction direction) const;
  void arrive(Playable playable);
  void go_on(std::optional<std::uint64_t> song);
  void load_current(Direction direction = Direction::forwards);
  void set_state(PlaybackState state);
  void finish_queue();
  void report_song_change();
  void report_arrival(std::optional<std::uint64_t> before);

  Player& player_;
  FileOf file_of_;
  PlayQueue queue_;
  PlaybackState state_ = PlaybackState::stopped;
  std::optional<std::uint64_t> loaded_;
  std::optional<Playable> next_;           // What the player continues with.
  std::optional<std::uint64_t> reported_;  // The song that was last reported.
  std::size_t failures_ = 0;               // Songs in a row that turned out to be unplayable.
};

}  // namespace host::media
