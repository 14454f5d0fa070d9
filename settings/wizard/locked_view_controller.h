#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIViewController.h"

/// A page that never turns with the phone. A class of the extension's own.
struct LockedUIViewController
    : objc::Own<LockedUIViewController, "LockedUIViewController", UIViewController> {};

namespace sonavue {

/// The one orientation of such a page, as a mask.
inline constexpr NSUInteger kPortraitOnly = 2;

void make_locked_view_controller();

}  // namespace sonavue
