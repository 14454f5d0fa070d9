#pragma once

#include "platform/SpringBoard/SBIconView.h"

/// Maps icons to their views. An icon keeps its view for as long as it is installed.
struct SBIconViewMap : objc::Bound<SBIconViewMap, "SBIconViewMap", NSObject> {
  static SBIconViewMap homescreenMap() { return call_class<"homescreenMap", SBIconViewMap>(); }
  static bool hasHomescreenMap() { return class_answers<"homescreenMap">(); }
  /// Returns nil if the icon has no view yet.
  SBIconView mappedIconViewForIcon(SBIcon icon) const {
    return call<"mappedIconViewForIcon:", SBIconView>(icon);
  }
};
