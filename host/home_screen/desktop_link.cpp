#include "host/home_screen/desktop_link.h"

#include "host/foundation/device_paths.h"

namespace host::launcher {
namespace {

constexpr const char* kCovers = "/var/mobile/Library/Caches/covers";

}  // namespace

std::unique_ptr<DesktopLink> DesktopLink::begin(RunLoop& loop, const Window& window) {
  media_player::MediaService* const music = media_player::MediaService::current();
  if (!music) return nullptr;
  return std::unique_ptr<DesktopLink>(new DesktopLink(loop, *music, window));
}

DesktopLink::DesktopLink(RunLoop& loop, media_player::MediaService& music, const Window& window)
    : session_(loop, desktop::Bus::Kind::kSession),
      now_playing_(loop, music, foundation::path_on_this_machine(kCovers)),
      player_(session_, now_playing_, {window.raise, window.quit}),
      sleep_lock_(loop, session_, now_playing_),
      notifier_(session_, now_playing_,
                {[&music] { return music.choices().announces_songs; }, window.is_in_front,
                 window.raise}) {
  session_.open();
}

}  // namespace host::launcher
