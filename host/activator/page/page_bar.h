#pragma once

#include "platform/UIKit/UIViewController.h"

namespace host::activator {

/// What a navigation bar is to a page that stands by itself: its title and a button that closes it.
UIView make_page_bar(UIViewController page, NSString title, objc::Sel close, CGFloat width);

/// Does the page stand by itself, or does somebody else put a bar over it?
inline bool stands_alone(UIViewController page) {
  return page.presentingViewController() && !page.parentViewController();
}

inline constexpr CGFloat kStatusBarHeight = 20;
inline constexpr CGFloat kPageBarHeight = kStatusBarHeight + 44;

}  // namespace host::activator
