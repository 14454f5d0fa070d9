#pragma once

#include "platform/Foundation/NSArray.h"
#include "platform/SpringBoard/SBIcon.h"

struct SBFolderIcon : objc::Bound<SBFolderIcon, "SBFolderIcon", SBIcon> {
  /// The icons inside, in order.
  NSArray icons() const { return call<"icons", NSArray>(); }
};
