#pragma once

#include "platform/SpringBoard/SBIconView.h"
#include "platform/UIKit/UITouch.h"

/// The messages that an icon's view sends about its touches.
struct SBIconViewDelegate : objc::Bound<SBIconViewDelegate, "SBIconViewDelegate", NSObject> {
  void iconTouchBegan(SBIconView icon_view) const { call<"iconTouchBegan:">(icon_view); }
  void iconTouchMoved(SBIconView icon_view, UITouch touch) const {
    call<"icon:touchMoved:">(icon_view, touch);
  }
  /// `lifted` is NO if the touch was cancelled.
  void iconTouchEnded(SBIconView icon_view, BOOL lifted) const {
    call<"icon:touchEnded:">(icon_view, lifted);
  }
  void iconTapped(SBIconView icon_view) const { call<"iconTapped:">(icon_view); }
  void iconHandleLongPress(SBIconView icon_view) const { call<"iconHandleLongPress:">(icon_view); }
};
