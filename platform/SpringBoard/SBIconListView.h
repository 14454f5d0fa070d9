#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/UIKit/UIView.h"

/// A grid of icon views: one page of the home screen, or the base of the dock's and a folder's.
struct SBIconListView : objc::Bound<SBIconListView, "SBIconListView", UIView> {
  /// The icons shown, in the order of their slots.
  NSArray icons() const { return call<"icons", NSArray>(); }
  /// The origin of the slot's icon view, in the list's coordinates.
  CGPoint originForIconAtIndex(NSUInteger index) const {
    return call<"originForIconAtIndex:", CGPoint>(index);
  }
};
