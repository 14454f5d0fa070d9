#pragma once

#include "platform/UIKit/UIColor.h"

using _UIBackdropViewStyle = NSInteger;

/// How a backdrop changes what is behind it. Each look is a subclass.
struct _UIBackdropViewSettings
    : objc::Bound<_UIBackdropViewSettings, "_UIBackdropViewSettings", NSObject> {
  /// Sent to a subclass, returns its look, whatever the number. Sent to this class, returns the
  /// look with that number, or the adaptive light one for an unknown number.
  static _UIBackdropViewSettings settingsForStyle(_UIBackdropViewStyle style) {
    return call_class<"settingsForStyle:", _UIBackdropViewSettings>(style);
  }

  _UIBackdropViewStyle style() const { return call<"style", _UIBackdropViewStyle>(); }
  /// In points.
  CGFloat blurRadius() const { return call<"blurRadius", CGFloat>(); }
  void setBlurRadius(CGFloat radius) const { call<"setBlurRadius:">(radius); }
  /// 1 leaves colours unchanged; 0 makes them grey.
  CGFloat saturationDeltaFactor() const { return call<"saturationDeltaFactor", CGFloat>(); }
  void setSaturationDeltaFactor(CGFloat factor) const { call<"setSaturationDeltaFactor:">(factor); }
  CGFloat grayscaleTintLevel() const { return call<"grayscaleTintLevel", CGFloat>(); }
  void setGrayscaleTintLevel(CGFloat level) const { call<"setGrayscaleTintLevel:">(level); }
  CGFloat grayscaleTintAlpha() const { return call<"grayscaleTintAlpha", CGFloat>(); }
  void setGrayscaleTintAlpha(CGFloat alpha) const { call<"setGrayscaleTintAlpha:">(alpha); }
  UIColor colorTint() const { return call<"colorTint", UIColor>(); }
  void setColorTint(UIColor color) const { call<"setColorTint:">(color); }
  CGFloat colorTintAlpha() const { return call<"colorTintAlpha", CGFloat>(); }
  void setColorTintAlpha(CGFloat alpha) const { call<"setColorTintAlpha:">(alpha); }
};

// clang-format off
#define SONAVUE_BACKDROP_SETTINGS(Name)                                                          \
  struct Name : objc::Bound<Name, #Name, _UIBackdropViewSettings> {                              \
    static Name settingsForStyle(_UIBackdropViewStyle style) {                                   \
      return call_class<"settingsForStyle:", Name>(style);                                       \
    }                                                                                            \
  };
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsAdaptiveLight)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsDark)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsUltraLight)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsLightLow)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsDarkLow)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsUltraDark)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsPasscodePaddle)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsLight)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsColored)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsSemiLight)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsFlatSemiLight)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsUltraColored)
SONAVUE_BACKDROP_SETTINGS(_UIBackdropViewSettingsLightKeyboard)
#undef SONAVUE_BACKDROP_SETTINGS
// clang-format on
