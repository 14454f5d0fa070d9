#pragma once

#include <optional>
#include <vector>

#include "host/springboard/surfaces/playback_view.h"
#include "host/springboard/surfaces/sheet_motion.h"
#include "objc/ref.h"

namespace host::springboard {

/// The contents of the control centre: switches, brightness, the playing song, and tools, on milk
/// glass. It is below the screen until it is pulled up.
class ControlCentrePanel {
 public:
  /// The functions that touches on the panel call.
  struct Callbacks {
    std::function<void()> dismiss;
    SurfaceActions::Pan pan;
    std::function<void(NSString bundle)> open;
  };

  /// `container` is as large as the screen.
  ControlCentrePanel(UIView container, const Callbacks& callbacks);
  ~ControlCentrePanel();
  ControlCentrePanel(const ControlCentrePanel&) = delete;
  ControlCentrePanel& operator=(const ControlCentrePanel&) = delete;

  UIView sheet() const { return *sheet_; }
  CGFloat height() const { return height_; }
  PlaybackView& playback() { return *playback_; }
  /// Sets the darkness of the shade above the panel: how far the panel is open, 0 to 1.
  void set_shade(CGFloat share) const;

 private:
  struct Switch {
    objc::Ref<UIView> disc;
    objc::Ref<UIImageView> glyph;
    bool is_on = false;
  };

  void add_switches(CGFloat top);
  void add_switch(NSString glyph_name, CGPoint centre, bool is_on);
  void add_brightness(CGFloat top);
  void add_tools(CGFloat top, const std::function<void(NSString)>& open);
  void add_line(CGFloat top) const;
  void flip(std::size_t index);
  void show(const Switch& shown) const;
  UIView content() const { return *content_; }

  CGFloat height_ = 0;
  objc::Ref<UIView> shade_;
  objc::Ref<UIView> sheet_;
  objc::Ref<UIView> content_;
  std::vector<Switch> switches_;
  objc::Ref<SBSurfaceSlider> brightness_;
  std::optional<PlaybackView> playback_;
  SurfaceActions actions_;
};

}  // namespace host::springboard
