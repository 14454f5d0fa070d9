#pragma once

#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

// What lies above what: the home screen and its applications at the normal level, then these. What
// extensions put up comes between the banners and the volume, as alerts do; the keyboard lies above
// all but the display itself.

/// Behind the screen that reachability has brought down.
inline constexpr UIWindowLevel kBehindScreenLevel = UIWindowLevelNormal - 1;
/// Above the status bar, which each card shows in small.
inline constexpr UIWindowLevel kSwitcherLevel = UIWindowLevelStatusBar + 10;
inline constexpr UIWindowLevel kLockScreenLevel = UIWindowLevelStatusBar + 50;
/// Of the status bar while the phone is locked: it lies on the lock screen.
inline constexpr UIWindowLevel kLockedStatusBarLevel = kLockScreenLevel + 1;
inline constexpr UIWindowLevel kNotificationCentreLevel = UIWindowLevelStatusBar + 56;
inline constexpr UIWindowLevel kControlCentreLevel = UIWindowLevelStatusBar + 66;
inline constexpr UIWindowLevel kBannerLevel = UIWindowLevelStatusBar + 90;
/// Above whatever anybody puts up, alerts too: the volume's buttons always work, and this is what
/// they answer.
inline constexpr UIWindowLevel kVolumeLevel = UIWindowLevelAlert + 100;
/// The screen's own light, which no window outshines.
inline constexpr UIWindowLevel kBrightnessLevel = 20'000'000;
inline constexpr UIWindowLevel kDisplayOffLevel = kBrightnessLevel + 1;

}  // namespace host::springboard
