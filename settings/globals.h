#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIViewController.h"

// What the pages of the settings share. Of each there is one, as there is one set of pages.

namespace sonavue::settings {

/// The page over which the wizard and the cards are shown.
inline constinit UIViewController where;

/// What the switch asked for that is still in question.
inline constinit objc::Object value1;

/// Where a finger came down, and where it was last.
inline constinit CGPoint startPoint;
inline constinit CGPoint endPoint;

}  // namespace sonavue::settings
