#pragma once

#include <memory>

#include "host/desktop/bus/bus.h"
#include "host/desktop/notification/song_notifier.h"
#include "host/desktop/now_playing/now_playing.h"
#include "host/desktop/player/players_interface.h"
#include "host/desktop/sleep/sleep_lock.h"
#include "host/home_screen/display.h"
#include "host/home_screen/page_song.h"

namespace host::launcher {

/// What connects the phone's music with the user's desktop: its media keys and panels, its sleep,
/// its notifications and the title of its page in a browser.
class DesktopLink {
 public:
  /// Returns null for a phone without music. The music and the display must outlive the link.
  static std::unique_ptr<DesktopLink> begin(RunLoop& loop, const Display& display);

 private:
  DesktopLink(RunLoop& loop, media_player::MediaService& music, const Display& display);

  desktop::Bus session_;
  desktop::NowPlaying now_playing_;
  desktop::PlayersInterface player_;
  desktop::SleepLock sleep_lock_;
  desktop::SongNotifier notifier_;
  PageSong page_song_;
};

}  // namespace host::launcher
