#pragma once

#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

// The order of the windows: the home screen and its applications are at the normal level, then
// come these. Windows of extensions lie between the banners and the volume, as alerts do; the
// keyboard lies above everything but the display itself.

/// Behind the screen that reachability has moved down.
inline constexpr UIWindowLevel kBehindScreenLevel = UIWindowLevelNormal - 1;
/// Above the status bar, which each card shows reduced.
inline constexpr UIWindowLevel kSwitcherLevel = UIWindowLevelStatusBar + 10;
inline constexpr UIWindowLevel kLockScreenLevel = UIWindowLevelStatusBar + 50;
/// The status bar's level while the phone is locked: on top of the lock screen.
inline constexpr UIWindowLevel kLockedStatusBarLevel = kLockScreenLevel + 1;
inline constexpr UIWindowLevel kNotificationCentreLevel = UIWindowLevelStatusBar + 56;
inline constexpr UIWindowLevel kControlCentreLevel = UIWindowLevelStatusBar + 66;
inline constexpr UIWindowLevel kBannerLevel = UIWindowLevelStatusBar + 90;
/// Above everything else, including alerts: the volume buttons always work, and this overlay is
/// their feedback.
inline constexpr UIWindowLevel kVolumeLevel = UIWindowLevelAlert + 100;
/// The dimming of the display, which covers every window.
inline constexpr UIWindowLevel kBrightnessLevel = 20'000'000;
inline constexpr UIWindowLevel kDisplayOffLevel = kBrightnessLevel + 1;

}  // namespace host::springboard
