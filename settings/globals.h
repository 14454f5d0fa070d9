#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIViewController.h"

// What the pages of the settings share. Of each there is one, as there is one set of pages.

namespace sonavue::settings {

/// The page over which the wizard and the cards are shown. It is kept until another takes its
/// place, since what it shows lives on it: the rows that cards belong to, and the wizard's
/// controls.
inline constinit UIViewController where;

inline void set_where(UIViewController page) {
  page.retain();
  where.release();
  where = page;
}

/// Ends what is shown over the page; by itself where the page has been taken from under it.
inline void end_shown(UIViewController shown) {
  const UIViewController ending = where.presentedViewController() ? where : shown;
  ending.dismissViewControllerAnimated(YES, nullptr);
}

/// What the switch asked for that is still in question.
inline constinit objc::Object value1;

/// Where a finger came down, and where it was last.
inline constinit CGPoint startPoint;
inline constinit CGPoint endPoint;

}  // namespace sonavue::settings
