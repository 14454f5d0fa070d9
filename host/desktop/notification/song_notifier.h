#pragma once

#include <functional>
#include <optional>
#include <string>

#include "host/desktop/bus/bus.h"
#include "host/desktop/now_playing/now_playing.h"

namespace host::desktop {

/// Shows each new song as a notification of the desktop while the window is not in front. There is
/// one notification, which replaces itself; a click on it brings the window.
class SongNotifier final : private BusClient, private NowPlayingListener {
 public:
  struct Choices {
    std::function<bool()> is_wanted;  // the user's choice, asked for each song
    std::function<bool()> is_window_in_front;
    std::function<void()> raise;  // empty without a window
  };

  SongNotifier(Bus& bus, NowPlaying& now_playing, Choices choices);
  ~SongNotifier() override;
  SongNotifier(const SongNotifier&) = delete;
  SongNotifier& operator=(const SongNotifier&) = delete;

 private:
  /// What the desktop's service can show.
  struct Abilities {
    bool has_markup = false;
    bool has_actions = false;
  };

  void bus_did_open() override {}
  void bus_did_close() override;
  void player_did_change(const PlayerState& state) override;

  void ask_abilities();
  void take_abilities(const Answer& answer);
  void notify(const Abilities& abilities);
  void take_number(const Answer& answer);
  void listen();
  void clicked(sd_bus_message* signal);

  Bus& bus_;
  NowPlaying& now_playing_;
  Choices choices_;
  std::uint64_t last_song_ = 0;
  std::optional<SongFacts> waiting_;  // the latest song that is not shown yet
  std::uint32_t number_ = 0;          // of the notification; 0 for none
  SlotRef question_;                  // while the service has not answered
  SlotRef clicks_;
};

}  // namespace host::desktop
