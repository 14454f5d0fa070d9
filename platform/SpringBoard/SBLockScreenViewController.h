#pragma once

#include "platform/UIKit/UIViewController.h"

struct SBLockScreenViewController
    : objc::Bound<SBLockScreenViewController, "SBLockScreenViewController", UIViewController> {
  void _handleDisplayTurnedOff() const { call<"_handleDisplayTurnedOff">(); }
  void prepareForUIUnlock() const { call<"prepareForUIUnlock">(); }
};
