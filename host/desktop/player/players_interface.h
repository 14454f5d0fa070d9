#pragma once

#include <functional>
#include <optional>
#include <string>

#include "host/desktop/bus/bus.h"
#include "host/desktop/now_playing/now_playing.h"
#include "host/desktop/player/player_commands.h"

namespace host::desktop {

/// The player as the desktop's players are known on the session's bus: for media keys, the
/// desktop's panel, remote controls. Root and player interface; there is no list of tracks, which
/// would be the whole library.
class PlayersInterface final : private BusClient, private NowPlayingListener {
 public:
  static constexpr const char* kPath = "/org/mpris/MediaPlayer2";
  static constexpr const char* kRoot = "org.mpris.MediaPlayer2";
  static constexpr const char* kPlayer = "org.mpris.MediaPlayer2.Player";
  static constexpr const char* kName = "org.mpris.MediaPlayer2.sonavue";

  struct Window {
    std::function<void()> raise;  // empty without a window
    std::function<void()> quit;
  };

  PlayersInterface(Bus& bus, NowPlaying& now_playing, Window window);
  ~PlayersInterface() override;
  PlayersInterface(const PlayersInterface&) = delete;
  PlayersInterface& operator=(const PlayersInterface&) = delete;

 private:
  friend struct PlayerTables;

  void bus_did_open() override;
  void bus_did_close() override;
  void player_did_change(const PlayerState& state) override;
  void player_did_jump(std::int64_t position) override;

  void ask_for_name(const std::string& name);
  void take_name(const std::string& name, const Answer& answer);

  Bus& bus_;
  NowPlaying& now_playing_;
  PlayerCommands commands_;
  Window window_;
  PlayerState told_;
  SlotRef root_;
  SlotRef player_;
  SlotRef name_request_;
  std::string name_;  // that it has
};

}  // namespace host::desktop
