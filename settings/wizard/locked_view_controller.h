#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIViewController.h"

/// A page that does not rotate with the phone. One of the extension's own classes.
struct LockedUIViewController
    : objc::Own<LockedUIViewController, "LockedUIViewController", UIViewController> {};

namespace sonavue {

/// The one orientation of such a page, as a mask.
inline constexpr NSUInteger kPortraitOnly = 2;

void make_locked_view_controller();

}  // namespace sonavue
