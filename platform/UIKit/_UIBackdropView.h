#pragma once

#include "platform/UIKit/UIView.h"
#include "platform/UIKit/_UIBackdropViewSettings.h"

struct _UIBackdropView : objc::Bound<_UIBackdropView, "_UIBackdropView", UIView> {
  _UIBackdropView initWithFrame(CGRect frame, BOOL autosizes,
                                _UIBackdropViewSettings settings) const {
    return call<"initWithFrame:autosizesToFitSuperview:settings:", _UIBackdropView>(
        frame, autosizes, settings);
  }
  _UIBackdropView initWithSettings(_UIBackdropViewSettings settings) const {
    return call<"initWithSettings:", _UIBackdropView>(settings);
  }
  _UIBackdropView initWithStyle(_UIBackdropViewStyle style) const {
    return call<"initWithStyle:", _UIBackdropView>(style);
  }

  _UIBackdropViewStyle style() const { return call<"style", _UIBackdropViewStyle>(); }
  void setStyle(_UIBackdropViewStyle style) const { call<"setStyle:">(style); }
  _UIBackdropViewSettings inputSettings() const {
    return call<"inputSettings", _UIBackdropViewSettings>();
  }
  void setInputSettings(_UIBackdropViewSettings settings) const {
    call<"setInputSettings:">(settings);
  }
  void applySettings(_UIBackdropViewSettings settings) const { call<"applySettings:">(settings); }
  BOOL autosizesToFitSuperview() const { return call<"autosizesToFitSuperview", BOOL>(); }
  void setAutosizesToFitSuperview(BOOL autosizes) const {
    call<"setAutosizesToFitSuperview:">(autosizes);
  }
};
