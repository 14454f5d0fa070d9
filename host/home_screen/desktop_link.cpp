#include "host/home_screen/desktop_link.h"

#include "host/foundation/device_paths.h"

namespace host::launcher {
namespace {

constexpr const char* kCovers = "/var/mobile/Library/Caches/covers";

/// Brings the window; empty without one.
std::function<void()> raising(const Display& display) {
  if (!display.has_window()) return nullptr;
  return [&display] { display.raise(); };
}

}  // namespace

std::unique_ptr<DesktopLink> DesktopLink::begin(RunLoop& loop, const Display& display) {
  media_player::MediaService* const music = media_player::MediaService::current();
  if (!music) return nullptr;
  return std::unique_ptr<DesktopLink>(new DesktopLink(loop, *music, display));
}

DesktopLink::DesktopLink(RunLoop& loop, media_player::MediaService& music, const Display& display)
    : session_(loop, desktop::Bus::Kind::kSession),
      now_playing_(loop, music, foundation::path_on_this_machine(kCovers)),
      player_(session_, now_playing_, {raising(display), [&loop] { loop.stop(); }}),
      sleep_lock_(loop, session_, now_playing_),
      notifier_(session_, now_playing_,
                {[&music] { return music.choices().announces_songs; },
                 [&display] { return display.is_in_front(); }, raising(display)}),
      page_song_(now_playing_, display.page()) {
  session_.open();
}

}  // namespace host::launcher
