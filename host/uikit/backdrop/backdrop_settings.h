#pragma once

#include "host/uikit/backdrop/backdrop_look.h"
#include "objc/class_builder.h"
#include "objc/ref.h"

namespace host::uikit {

class BackdropSettings : public objc::Implementation<BackdropSettings, _UIBackdropViewSettings> {
 public:
  explicit BackdropSettings(_UIBackdropViewSettings owner)
      : Implementation(owner), look_(look_of_style(0)) {}

  _UIBackdropViewStyle style() const { return look_.style; }
  CGFloat blur_radius() const { return look_.blur_radius; }
  void set_blur_radius(CGFloat radius) { look_.blur_radius = radius; }
  CGFloat saturation() const { return look_.saturation; }
  void set_saturation(CGFloat factor) { look_.saturation = factor; }
  CGFloat gray_level() const { return look_.gray_level; }
  void set_gray_level(CGFloat level) { look_.gray_level = level; }
  CGFloat gray_alpha() const { return look_.gray_alpha; }
  void set_gray_alpha(CGFloat alpha) { look_.gray_alpha = alpha; }
  UIColor color_tint() const;
  void set_color_tint(UIColor color);
  CGFloat color_tint_alpha() const { return look_.tint.alpha; }
  void set_color_tint_alpha(CGFloat alpha) { look_.tint.alpha = alpha; }

  const BackdropLook& look() const { return look_; }
  void set_look(const BackdropLook& look) { look_ = look; }

 private:
  BackdropLook look_;
};

void export_backdrop_settings();

}  // namespace host::uikit
