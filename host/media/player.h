#pragma once

#include <string>

namespace host::media {

// Receives a player's events, always from inside `pump()`, never from inside another call.
class PlayerListener {
 public:
  virtual ~PlayerListener() = default;
  // Nothing follows the file.
  virtual void player_did_reach_end() = 0;
  // The file that follows has begun and is now the loaded one.
  virtual void player_did_continue() {}
  virtual void player_did_fail(const std::string& path, const std::string& reason) = 0;
  // The device that was playing is no longer there.
  virtual void player_did_lose_device() {}
};

// Plays songs as loud as each other, by their tags: each by its own loudness, or by its album's. No
// song is made so loud that it is clipped.
enum class ReplayGain { off, track, album };

// The playback engine's own state, for checks that music really plays.
struct EngineState {
  std::string path;  // Empty when nothing is loaded.
  bool is_paused = false;
  double position_seconds = 0;
  double volume_percent = 0;
};

// Plays one file at a time. Times are seconds from the start of the file.
class Player {
 public:
  virtual ~Player() = default;

  virtual void set_listener(PlayerListener* listener) = 0;

  // Replaces the file, at its start; the player keeps playing or stays paused as before. The
  // listener is told of a file that cannot be played. Nothing follows the file.
  virtual void load(const std::string& path) = 0;
  // Makes `path` follow the loaded file without a gap; empty for nothing. It is opened before the
  // loaded file ends. A player that cannot continue by itself reports the end as usual.
  virtual void follow_with(const std::string& path) = 0;
  virtual void play() = 0;
  virtual void pause() = 0;
  // Unloads the file and pauses.
  virtual void stop() = 0;
  // Clamped to the length of the file; ignored when nothing is loaded.
  virtual void seek(double seconds) = 0;
  // From 0 to 1.
  virtual void set_volume(double volume) = 0;

  virtual void set_replay_gain(ReplayGain gain) = 0;

  virtual double volume() const = 0;
  virtual double position() const = 0;
  // 0 while unknown.
  virtual double duration() const = 0;
  virtual bool is_paused() const = 0;

  // Readable when `pump()` has work.
  virtual int descriptor() const = 0;
  virtual void pump() = 0;

  virtual EngineState engine() = 0;
};

}  // namespace host::media
