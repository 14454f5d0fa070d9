#pragma once

#include <functional>
#include <memory>

#include "host/desktop/bus/bus.h"
#include "host/desktop/notification/song_notifier.h"
#include "host/desktop/now_playing/now_playing.h"
#include "host/desktop/player/players_interface.h"
#include "host/desktop/sleep/sleep_lock.h"

namespace host::launcher {

/// What connects the phone's music with the user's desktop: its media keys and panels, its sleep
/// and its notifications.
class DesktopLink {
 public:
  struct Window {
    std::function<void()> raise;  // empty without a window
    std::function<bool()> is_in_front;
    std::function<void()> quit;
  };

  /// Returns null for a phone without music. The music must outlive the link.
  static std::unique_ptr<DesktopLink> begin(RunLoop& loop, const Window& window);

 private:
  DesktopLink(RunLoop& loop, media_player::MediaService& music, const Window& window);

  desktop::Bus session_;
  desktop::NowPlaying now_playing_;
  desktop::PlayersInterface player_;
  desktop::SleepLock sleep_lock_;
  desktop::SongNotifier notifier_;
};

}  // namespace host::launcher
