#include "host/uikit/backdrop/backdrop_view.h"

#include <cmath>

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "platform/UIKit/UIWindow.h"

namespace host::uikit {
namespace {

// After the screen has painted: only then is the background known.
constexpr int kAfterPainting = 300;
// Smaller changes of the background's brightness would not be visible in the tint.
constexpr double kNoticeableChange = 0.02;

quartzcore::BackdropLayer& layer_of(_UIBackdropView view) {
  return objc::state_of<quartzcore::BackdropLayer>(view.layer());
}

}  // namespace

objc::Class BackdropView::layer_class(objc::Object) {
  return CABackdropLayer::cls();
}

_UIBackdropView BackdropView::init_with_frame(CGRect frame) {
  return self.initWithFrame(frame, NO, _UIBackdropViewSettings::settingsForStyle(0));
}

_UIBackdropView BackdropView::init_with_settings(_UIBackdropViewSettings settings) {
  return self.initWithFrame({}, YES, settings);
}

_UIBackdropView BackdropView::init_with_style(_UIBackdropViewStyle style) {
  return self.initWithFrame({}, YES, _UIBackdropViewSettings::settingsForStyle(style));
}

_UIBackdropView BackdropView::init_whole(CGRect frame, BOOL autosizes,
                                         _UIBackdropViewSettings settings) {
  super<_UIBackdropView>("initWithFrame:"_sel, frame);
  autosizes_ = autosizes;
  style_ = settings.style();
  input_.reset(settings);
  self.applySettings(settings);
  return self;
}

void BackdropView::set_style(_UIBackdropViewStyle style) {
  if (style_ == style) return;
  style_ = style;
  const auto settings = _UIBackdropViewSettings::settingsForStyle(style);
  self.setInputSettings(settings);
  self.applySettings(settings);
}

void BackdropView::set_input_settings(_UIBackdropViewSettings settings) {
  input_.reset(settings);
}

void BackdropView::apply_settings(_UIBackdropViewSettings settings) {
  if (!settings) return;
  const BackdropLook& look = objc::state_of<BackdropSettings>(settings).look();
  tint_ = look.tint;
  layer_of(self).show({.blur_radius = settings.blurRadius(),
                       .saturation = settings.saturationDeltaFactor(),
                       .gray_alpha = settings.grayscaleTintAlpha(),
                       .gray_level = settings.grayscaleTintLevel(),
                       .tint = look.tint});
  follows_brightness_ = look.tinting == BackdropTint::FollowsBrightness;
  followed_luminance_ = -1;
  watch_brightness();
}

void BackdropView::set_tint(const quartzcore::Rgba& tint) {
  tint_ = tint;
  quartzcore::BackdropLook look = layer_of(self).look();
  look.tint = tint;
  layer_of(self).show(look);
}

void BackdropView::set_autosizes(BOOL autosizes) {
  autosizes_ = autosizes;
  fill_superview();
}

void BackdropView::fill_superview() {
  const UIView superview = self.superview();
  if (!autosizes_ || !superview) return;
  self.setFrame(superview.bounds());
  self.setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
}

void BackdropView::did_move_to_superview() {
  super<>("didMoveToSuperview"_sel);
  fill_superview();
}

void BackdropView::did_move_to_window() {
  super<>("didMoveToWindow"_sel);
  watch_brightness();
}

void BackdropView::watch_brightness() {
  if (!follows_brightness_ || !self.window()) return stop_watching();
  if (!watch_)
    watch_ = RunLoop::main().add_turn_observer(kAfterPainting, [this] { follow_brightness(); });
}

void BackdropView::stop_watching() {
  if (watch_ && RunLoop::has_main()) RunLoop::main().remove_turn_observer(watch_);
  watch_ = 0;
}

void BackdropView::follow_brightness() {
  const double luminance = layer_of(self).luminance();
  if (std::abs(luminance - followed_luminance_) < kNoticeableChange) return;
  followed_luminance_ = luminance;
  quartzcore::Rgba tint = tint_;
  tint.alpha = adaptive_tint_alpha(luminance);
  set_tint(tint);
  // This turn has already painted; the new tint needs another turn.
  RunLoop::main().perform([] {});
}

void export_backdrop_view() {
  if (objc_getClass("_UIBackdropView")) return;
  objc::ClassBuilder("_UIBackdropView", "UIView")
      .state<BackdropView>()
      .class_method<&BackdropView::layer_class>("layerClass")
      .method<&BackdropView::init_with_frame>("initWithFrame:")
      .method<&BackdropView::init_whole>("initWithFrame:autosizesToFitSuperview:settings:")
      .method<&BackdropView::init_with_settings>("initWithSettings:")
      .method<&BackdropView::init_with_style>("initWithStyle:")
      .method<&BackdropView::style>("style")
      .method<&BackdropView::set_style>("setStyle:")
      .method<&BackdropView::input_settings>("inputSettings")
      .method<&BackdropView::set_input_settings>("setInputSettings:")
      .method<&BackdropView::apply_settings>("applySettings:")
      .method<&BackdropView::autosizes>("autosizesToFitSuperview")
      .method<&BackdropView::set_autosizes>("setAutosizesToFitSuperview:")
      .method<&BackdropView::did_move_to_superview>("didMoveToSuperview")
      .method<&BackdropView::did_move_to_window>("didMoveToWindow")
      .finish();
}

void export_backdrop() {
  export_backdrop_settings();
  export_backdrop_view();
}

}  // namespace host::uikit
