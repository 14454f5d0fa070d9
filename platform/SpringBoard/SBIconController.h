#pragma once

#include "platform/SpringBoard/SBIconModel.h"
#include "platform/SpringBoard/SBIconViewMap.h"

struct SBIconController : objc::Bound<SBIconController, "SBIconController", NSObject> {
  static SBIconController sharedInstance() {
    return call_class<"sharedInstance", SBIconController>();
  }
  SBIconModel model() const { return call<"model", SBIconModel>(); }
  /// The home screen's map, on systems whose `SBIconViewMap` does not have it.
  SBIconViewMap homescreenIconViewMap() const {
    return call<"homescreenIconViewMap", SBIconViewMap>();
  }
  bool hasHomescreenIconViewMap() const { return answers<"homescreenIconViewMap">(); }
  BOOL isEditing() const { return call<"isEditing", BOOL>(); }
  void setIsEditing(BOOL editing) const { call<"setIsEditing:">(editing); }
  BOOL hasOpenFolder() const { return call<"hasOpenFolder", BOOL>(); }
  void closeFolderAnimated(BOOL animated) const { call<"closeFolderAnimated:">(animated); }
  NSInteger currentIconListIndex() const { return call<"currentIconListIndex", NSInteger>(); }
  /// Returns NO if that page is already shown.
  BOOL scrollToIconListAtIndex(NSInteger index, BOOL animated) const {
    return call<"scrollToIconListAtIndex:animate:", BOOL>(index, animated);
  }
  void iconTapped(SBIconView icon_view) const { call<"iconTapped:">(icon_view); }
};
