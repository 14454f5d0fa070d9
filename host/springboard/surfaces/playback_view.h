#pragma once

#include <memory>
#include <optional>

#include "host/runtime/run_loop.h"
#include "host/springboard/parts/slider.h"
#include "host/springboard/parts/surface_action.h"
#include "host/springboard/surfaces/now_playing.h"

namespace host::springboard {

enum class Ink { kDark, kLight };

/// Song, time, transport buttons and volume, for both the control centre and the lock screen. While
/// it is watching it polls the player twice a second, and repaints only what has changed.
class PlaybackView {
 public:
  static constexpr CGFloat kHeight = 152;

  /// Calls `on_change`, which may be empty, after every poll of the player.
  PlaybackView(UIView parent, CGRect frame, Ink ink,
               std::function<void(const NowPlaying&)> on_change = {});
  ~PlaybackView();
  PlaybackView(const PlaybackView&) = delete;
  PlaybackView& operator=(const PlaybackView&) = delete;

  UIView view() const { return *view_; }
  void start_watching();
  void stop_watching();
  void update();

 private:
  void add_time(const SliderColors& colors);
  void add_transport();
  void add_volume(const SliderColors& colors);
  void show_time(const NowPlaying& playing);
  UIColor ink(CGFloat alpha) const;

  Ink ink_;
  std::function<void(const NowPlaying&)> on_change_;
  objc::Ref<UIView> view_;
  objc::Ref<UIView> elapsed_bar_;
  objc::Ref<UILabel> elapsed_;
  objc::Ref<UILabel> remaining_;
  objc::Ref<UILabel> title_;
  objc::Ref<UILabel> line_;
  objc::Ref<UIButton> play_;
  objc::Ref<SBSurfaceSlider> volume_;
  NowPlayingReader reader_;
  bool shows_pause_ = false;
  std::optional<RunLoop::Id> timer_;
  SurfaceActions actions_;
};

}  // namespace host::springboard
