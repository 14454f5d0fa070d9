#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIViewController.h"

// The shared state of the settings' pages. There is only one set of pages.

namespace sonavue::settings {

/// The page over which the wizard and the cards are shown. Retained until another page replaces it,
/// since it owns what the shown views need: the rows that cards belong to, and the wizard's
/// controls.
inline constinit UIViewController where;

inline void set_where(UIViewController page) {
  page.retain();
  where.release();
  where = page;
}

/// Dismisses what is shown over the page. If the page is no longer presenting it, `shown` dismisses
/// itself.
inline void end_shown(UIViewController shown) {
  const UIViewController ending = where.presentedViewController() ? where : shown;
  ending.dismissViewControllerAnimated(YES, nullptr);
}

/// The requested value of the switch that awaits confirmation.
inline constinit objc::Object value1;

/// The start point and the last point of a drag.
inline constinit CGPoint startPoint;
inline constinit CGPoint endPoint;

}  // namespace sonavue::settings
