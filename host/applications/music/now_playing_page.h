#pragma once

#include <optional>

#include "host/applications/music/player_state.h"
#include "host/runtime/run_loop.h"
#include "host/springboard/parts/slider.h"
#include "host/springboard/parts/surface_action.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UIViewController.h"

namespace host::music {

struct MusicNowPlayingController
    : objc::Bound<MusicNowPlayingController, "MusicNowPlayingController", UIViewController> {};

/// The playing song on the whole screen: its cover, its position, its texts, and the buttons and
/// the volume below.
class NowPlayingPage : public objc::Implementation<NowPlayingPage, MusicNowPlayingController> {
 public:
  using Implementation::Implementation;
  ~NowPlayingPage();

  static objc::Ref<MusicNowPlayingController> make(const PlayerState& player);

  void view_did_load();
  void view_will_appear(BOOL animated);
  void view_will_disappear(BOOL animated);
  void player_changed();
  void library_changed();
  UILabel title_label() const { return title_.get(); }
  UIButton play_button() const { return play_.get(); }
  UIButton next_button() const { return next_.get(); }

 private:
  void add_scrubber(CGFloat top);
  void add_texts(CGFloat top);
  void add_transport(CGFloat middle);
  void add_volume(CGFloat middle);
  void show_time() const;
  void run_time(bool runs);

  const PlayerState* player_ = nullptr;
  objc::Ref<UIImageView> cover_;
  objc::Ref<springboard::SBSurfaceSlider> scrubber_;
  objc::Ref<UILabel> elapsed_;
  objc::Ref<UILabel> remaining_;
  objc::Ref<UILabel> title_;
  objc::Ref<UILabel> line_;
  objc::Ref<UIButton> play_;
  objc::Ref<UIButton> next_;
  objc::Ref<springboard::SBSurfaceSlider> volume_;
  springboard::SurfaceActions actions_;
  std::optional<RunLoop::Id> time_;
  std::optional<std::uint64_t> shown_song_;
  std::optional<bool> shown_playing_;
};

void export_now_playing_page();

}  // namespace host::music
