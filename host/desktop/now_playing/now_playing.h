#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/desktop/now_playing/cover_files.h"
#include "host/desktop/now_playing/song_facts.h"
#include "host/media_player/media_service.h"

namespace host::desktop {

/// What the player does, as other programs are told of it.
struct PlayerState {
  media::PlaybackState playback = media::PlaybackState::stopped;
  std::optional<SongFacts> song;
  bool awaits_cover = false;  // the song's cover has no file yet, and will have one
  double volume = 0;          // from 0 to 1
  media::Repeat repeat = media::Repeat::none;
  bool shuffles = false;
  bool can_play = false;
  bool can_go_next = false;
  bool can_go_previous = false;

  bool is_playing() const { return playback == media::PlaybackState::playing; }
  bool can_pause() const { return song || is_playing(); }
  bool can_seek() const { return song && song->microseconds > 0; }
  bool operator==(const PlayerState&) const = default;
};

class NowPlayingListener {
 public:
  virtual ~NowPlayingListener() = default;
  virtual void player_did_change(const PlayerState& state) = 0;
  /// The song goes on at another place, in microseconds.
  virtual void player_did_jump(std::int64_t) {}
};

/// Follows the process's music and tells its listeners once a turn of what has changed in it.
class NowPlaying final : private media_player::MediaObserver {
 public:
  /// The service must outlive this object; `cover_folder` is a path of this machine.
  NowPlaying(RunLoop& loop, media_player::MediaService& service, std::string cover_folder);
  ~NowPlaying() override;
  NowPlaying(const NowPlaying&) = delete;
  NowPlaying& operator=(const NowPlaying&) = delete;

  /// Tells the listener the present state. It outlives this object or is removed.
  void add_listener(NowPlayingListener& listener);
  void remove_listener(NowPlayingListener& listener) { std::erase(listeners_, &listener); }

  const PlayerState& state() const { return state_; }
  std::int64_t position() const { return in_microseconds(service_.playback().position()); }
  media_player::MediaService& service() { return service_; }

  /// Tells what has changed now, before the turn ends: what a program has asked for has happened
  /// when it gets its answer.
  void tell();

 private:
  void media_did_change() override { tell_soon(); }
  void media_did_jump() override;
  void tell_soon();
  PlayerState look();

  RunLoop& loop_;
  media_player::MediaService& service_;
  CoverFiles covers_;
  std::vector<NowPlayingListener*> listeners_;
  PlayerState state_;
  bool has_jumped_ = false;
  bool tells_soon_ = false;
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

}  // namespace host::desktop
