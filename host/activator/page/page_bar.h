#pragma once

#include "platform/UIKit/UIViewController.h"

namespace host::activator {

/// Replaces the navigation bar of a stand-alone page: its title and a button that closes it.
UIView make_page_bar(UIViewController page, NSString title, objc::Sel close, CGFloat width);

/// Returns true when the page is presented by itself, so that no container puts a bar over it.
inline bool stands_alone(UIViewController page) {
  return page.presentingViewController() && !page.parentViewController();
}

inline constexpr CGFloat kStatusBarHeight = 20;
inline constexpr CGFloat kPageBarHeight = kStatusBarHeight + 44;

}  // namespace host::activator
