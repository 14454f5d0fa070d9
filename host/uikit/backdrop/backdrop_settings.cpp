#include "host/uikit/backdrop/backdrop_settings.h"

#include "host/uikit/drawing/color.h"

namespace host::uikit {
namespace {

_UIBackdropViewSettings settings_for_style(objc::Object cls, _UIBackdropViewStyle style) {
  const BackdropLook* own = look_of_class(reinterpret_cast<objc::Class>(cls.id()));
  const auto settings = objc::send<_UIBackdropViewSettings>(cls, "alloc"_sel).init().autorelease();
  objc::state_of<BackdropSettings>(settings).set_look(own ? *own : look_of_style(style));
  return settings;
}

}  // namespace

UIColor BackdropSettings::color_tint() const {
  const auto& tint = look_.tint;
  return tint.alpha > 0 ? UIColor::colorWithRed(tint.red, tint.green, tint.blue, 1) : UIColor();
}

void BackdropSettings::set_color_tint(UIColor color) {
  const double alpha = color ? look_.tint.alpha : 0;
  look_.tint = components_of(color);
  look_.tint.alpha = alpha;
}

void export_backdrop_settings() {
  if (objc_getClass("_UIBackdropViewSettings")) return;
  objc::ClassBuilder("_UIBackdropViewSettings", "NSObject")
      .state<BackdropSettings>()
      .class_method<&settings_for_style>("settingsForStyle:")
      .method<&BackdropSettings::style>("style")
      .method<&BackdropSettings::blur_radius>("blurRadius")
      .method<&BackdropSettings::set_blur_radius>("setBlurRadius:")
      .method<&BackdropSettings::saturation>("saturationDeltaFactor")
      .method<&BackdropSettings::set_saturation>("setSaturationDeltaFactor:")
      .method<&BackdropSettings::gray_level>("grayscaleTintLevel")
      .method<&BackdropSettings::set_gray_level>("setGrayscaleTintLevel:")
      .method<&BackdropSettings::gray_alpha>("grayscaleTintAlpha")
      .method<&BackdropSettings::set_gray_alpha>("setGrayscaleTintAlpha:")
      .method<&BackdropSettings::color_tint>("colorTint")
      .method<&BackdropSettings::set_color_tint>("setColorTint:")
      .method<&BackdropSettings::color_tint_alpha>("colorTintAlpha")
      .method<&BackdropSettings::set_color_tint_alpha>("setColorTintAlpha:")
      .finish();
  for (const BackdropLook& look : backdrop_looks())
    objc::ClassBuilder(look.class_name, "_UIBackdropViewSettings").finish();
}

}  // namespace host::uikit
