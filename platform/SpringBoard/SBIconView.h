#pragma once

#include "platform/SpringBoard/SBIcon.h"
#include "platform/UIKit/UIView.h"

enum SBIconLocation : int {
  SBIconLocationHomeScreen = 0,
  SBIconLocationDock = 1,
  SBIconLocationFolder = 6,
};

/// The view of one icon: its image, its label and its touches. Its frame is in the coordinates of
/// the list view that holds it.
struct SBIconView : objc::Bound<SBIconView, "SBIconView", UIView> {
  SBIcon icon() const { return call<"icon", SBIcon>(); }
  void setIcon(SBIcon icon) const { call<"setIcon:">(icon); }
  /// An `SBIconViewDelegate`, not retained.
  objc::Object delegate() const { return call<"delegate", objc::Object>(); }
  void setDelegate(objc::Object delegate) const { call<"setDelegate:">(delegate); }
  int location() const { return call<"location", int>(); }
  void setLocation(int location) const { call<"setLocation:">(location); }
  BOOL isInDock() const { return call<"isInDock", BOOL>(); }
  BOOL isEditing() const { return call<"isEditing", BOOL>(); }
  void setIsEditing(BOOL editing) const { call<"setIsEditing:">(editing); }
  BOOL isHighlighted() const { return call<"isHighlighted", BOOL>(); }
  void setHighlighted(BOOL highlighted) const { call<"setHighlighted:">(highlighted); }
};
