#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/runtime/run_loop.h"
#include "host/springboard/model/wall_clock.h"
#include "host/springboard/surfaces/notification_store.h"
#include "host/springboard/surfaces/playback_view.h"
#include "host/springboard/surfaces/unlock_text.h"

namespace host::springboard {

/// The contents of the lock screen: wallpaper, time and date, the playing song with its cover,
/// messages, and the "slide to unlock" text. Nothing in it moves while it is asleep.
class LockScreenPanel {
 public:
  /// Calls `unlock` once the user has slid the content away far or fast enough.
  LockScreenPanel(UIView window, const WallClock& clock, std::function<void()> unlock);
  ~LockScreenPanel();
  LockScreenPanel(const LockScreenPanel&) = delete;
  LockScreenPanel& operator=(const LockScreenPanel&) = delete;

  void wake();
  void sleep();
  void show(const std::vector<Notification>& messages);
  bool has_messages() const { return has_messages_; }
  UIView view() const { return *view_; }
  UILabel time() const { return *time_; }
  bool shows_playback() const { return !playback_->view().isHidden(); }

 private:
  void add_wallpaper();
  void add_clock();
  void add_playback();
  void show_playing(const NowPlaying& playing);
  void show_time();
  void arrange();
  void slid(UIPanGestureRecognizer pan);
  void slide_back() const;

  const WallClock& clock_;
  std::function<void()> unlock_;
  objc::Ref<UIView> view_;
  objc::Ref<UIView> shade_;
  objc::Ref<UIView> content_;
  objc::Ref<UILabel> time_;
  objc::Ref<UILabel> date_;
  objc::Ref<UIImageView> artwork_;
  std::optional<PlaybackView> playback_;
  objc::Ref<UIView> list_;
  std::optional<UnlockText> text_;
  std::optional<RunLoop::Id> next_minute_;
  bool has_messages_ = false;
  bool awake_ = false;
  SurfaceActions actions_;
};

}  // namespace host::springboard
