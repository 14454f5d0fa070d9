#pragma once

#include <memory>

#include "host/applications/music/mini_bar.h"
#include "host/applications/music/now_playing_page.h"
#include "host/applications/music/songs_page.h"
#include "host/applications/program/program.h"
#include "host/applications/program/shared_library.h"
#include "platform/UIKit/UINavigationController.h"

namespace host::music {

struct MusicApplicationObject
    : objc::Bound<MusicApplicationObject, "MusicApplication", UIApplication> {};

/// The Music application: the list of songs, the page of the playing song, and the bar between
/// them. The home screen's process plays the music.
class MusicApplication : public objc::Implementation<MusicApplication, MusicApplicationObject> {
 public:
  using Implementation::Implementation;
  ~MusicApplication();

  void application_did_finish_launching(objc::Object application);

  // For tests.
  UITableView songs_table() const;
  UIView mini_bar() const { return mini_bar_->view(); }
  MusicNowPlayingController now_playing() const { return now_playing_.get(); }
  UINavigationController navigation() const { return navigation_.get(); }

 private:
  void play(MPMediaItem song);
  void open_now_playing();
  void player_changed();

  PlayerState player_;
  objc::Ref<UIWindow> window_;
  objc::Ref<MusicSongsController> songs_;
  objc::Ref<MusicNowPlayingController> now_playing_;
  objc::Ref<UINavigationController> navigation_;
  std::unique_ptr<MiniBar> mini_bar_;
};

void export_music_classes();

inline constexpr std::string_view kImages[] = {process::kUIKit, process::kMediaPlayer};
inline constexpr application::Program kProgram{
    .bundle = "com.apple.Music",
    .folder = "/Applications/Music.app",
    .name = "Music",
    .images = kImages,
    .application_class = "MusicApplication",
    .export_classes = &export_music_classes,
    .prepare = &application::open_shared_library,
};

}  // namespace host::music
