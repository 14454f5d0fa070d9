#include "host/applications/music/music_application.h"

#include "host/applications/music/library.h"
#include "host/applications/music/look.h"
#include "host/applications/program/player_remote.h"
#include "host/runtime/device_model.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/parts/slider.h"
#include "host/springboard/parts/surface_action.h"

namespace host::music {

using application::PlayerRemote;

MusicApplication::~MusicApplication() {
  PlayerRemote::shared().on_change = {};
}

void MusicApplication::application_did_finish_launching(objc::Object) {
  const DeviceModel& device = current_device();
  window_ = springboard::make_view<UIWindow>({0, 0, device.width, device.height});
  window_->setBackgroundColor(UIColor::whiteColor());
  window_->setTintColor(accent_color());
  songs_ = SongsPage::make(player_, [this](MPMediaItem song) { play(song); });
  now_playing_ = NowPlayingPage::make(player_);
  navigation_ = objc::Ref<UINavigationController>::adopt(
      UINavigationController::alloc().initWithRootViewController(*songs_));
  window_->setRootViewController(*navigation_);
  mini_bar_ = std::make_unique<MiniBar>(*window_, player_, [this] { open_now_playing(); });
  objc::state_of<SongsPage>(*songs_).on_visible = [this](bool visible) {
    mini_bar_->set_wanted(visible);
  };
  objc::state_of<SongsPage>(*songs_).on_library_change = [this] {
    mini_bar_->library_changed();
    objc::state_of<NowPlayingPage>(*now_playing_).library_changed();
  };
  PlayerRemote::shared().on_change = [this] { player_changed(); };
  window_->makeKeyAndVisible();
}

UITableView MusicApplication::songs_table() const {
  return objc::state_of<SongsPage>(*songs_).table();
}

void MusicApplication::play(MPMediaItem song) {
  PlayerRemote::shared().play_song(id_of(song));
  open_now_playing();
}

void MusicApplication::open_now_playing() {
  if (navigation_->topViewController() == *songs_)
    navigation_->pushViewController(*now_playing_, YES);
}

void MusicApplication::player_changed() {
  application::follow_shared_library(PlayerRemote::shared().playback().library);
  player_.refresh();
  objc::state_of<SongsPage>(*songs_).player_changed();
  objc::state_of<NowPlayingPage>(*now_playing_).player_changed();
  mini_bar_->player_changed();
}

void export_music_classes() {
  if (objc_getClass("MusicApplication")) return;
  springboard::export_slider();
  springboard::export_surface_action();
  export_songs_page();
  export_now_playing_page();
  objc::ClassBuilder("MusicApplication", "UIApplication")
      .state<MusicApplication>()
      .method<&MusicApplication::application_did_finish_launching>("applicationDidFinishLaunching:")
      .method<&MusicApplication::songs_table>("songsTable")
      .method<&MusicApplication::mini_bar>("miniBar")
      .method<&MusicApplication::now_playing>("nowPlaying")
      .method<&MusicApplication::navigation>("navigation")
      .finish();
}

}  // namespace host::music
