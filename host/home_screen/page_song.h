#pragma once

#include "host/browser/phone/phone_page.h"
#include "host/desktop/now_playing/now_playing.h"

namespace host::launcher {

/// Tells the page in the browser what plays.
class PageSong final : public desktop::NowPlayingListener {
 public:
  /// Both outlive this object; the page may be null.
  PageSong(desktop::NowPlaying& now_playing, browser::PhonePage* page)
      : now_playing_(now_playing), page_(page) {
    if (page_) now_playing_.add_listener(*this);
  }
  ~PageSong() override { now_playing_.remove_listener(*this); }
  PageSong(const PageSong&) = delete;
  PageSong& operator=(const PageSong&) = delete;

  void player_did_change(const desktop::PlayerState& state) override {
    const desktop::SongFacts song = state.song.value_or(desktop::SongFacts());
    page_->set_song({song.title, song.artist, state.is_playing()});
  }

 private:
  desktop::NowPlaying& now_playing_;
  browser::PhonePage* const page_;
};

}  // namespace host::launcher
