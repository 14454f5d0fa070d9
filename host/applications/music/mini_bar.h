#pragma once

#include <functional>

#include "host/applications/music/player_state.h"
#include "host/springboard/parts/surface_action.h"
#include "platform/UIKit/UIImageView.h"

namespace host::music {

/// The playing song at the bottom of the list: its cover, its texts and a play or pause button.
/// Hidden while nothing is loaded, or while the playing song has the whole screen.
class MiniBar {
 public:
  MiniBar(UIView parent, const PlayerState& player, std::function<void()> tapped);
  MiniBar(const MiniBar&) = delete;
  MiniBar& operator=(const MiniBar&) = delete;

  void player_changed();
  void library_changed();
  /// Pass true while the list below the bar is visible.
  void set_wanted(bool wanted);
  UIView view() const { return bar_.get(); }

 private:
  void build();
  void show_or_hide();

  const PlayerState& player_;
  objc::Ref<UIView> bar_;
  objc::Ref<UIImageView> cover_;
  objc::Ref<UILabel> title_;
  objc::Ref<UILabel> artist_;
  objc::Ref<UIButton> play_;
  springboard::SurfaceActions actions_;
  std::uint64_t shown_song_ = 0;
  bool wanted_ = true;
};

}  // namespace host::music
