#pragma once

#include "objc/abi.h"

enum UIViewContentMode : NSInteger {
  UIViewContentModeScaleToFill,
  UIViewContentModeScaleAspectFit,
  UIViewContentModeScaleAspectFill,
  UIViewContentModeRedraw,
  UIViewContentModeCenter,
  UIViewContentModeTop,
  UIViewContentModeBottom,
  UIViewContentModeLeft,
  UIViewContentModeRight,
  UIViewContentModeTopLeft,
  UIViewContentModeTopRight,
  UIViewContentModeBottomLeft,
  UIViewContentModeBottomRight,
};

using UIViewAutoresizing = NSUInteger;
inline constexpr UIViewAutoresizing UIViewAutoresizingNone = 0;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleLeftMargin = 1 << 0;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleWidth = 1 << 1;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleRightMargin = 1 << 2;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleTopMargin = 1 << 3;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleHeight = 1 << 4;
inline constexpr UIViewAutoresizing UIViewAutoresizingFlexibleBottomMargin = 1 << 5;

using UIViewAnimationOptions = NSUInteger;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionLayoutSubviews = 1 << 0;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionAllowUserInteraction = 1 << 1;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionBeginFromCurrentState = 1 << 2;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionRepeat = 1 << 3;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionAutoreverse = 1 << 4;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionOverrideInheritedDuration = 1 << 5;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionOverrideInheritedCurve = 1 << 6;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionOverrideInheritedOptions = 1 << 9;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionCurveEaseInOut = 0 << 16;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionCurveEaseIn = 1 << 16;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionCurveEaseOut = 2 << 16;
inline constexpr UIViewAnimationOptions UIViewAnimationOptionCurveLinear = 3 << 16;

/// The curve of a keyboard's movement, as its notifications report it.
inline constexpr NSInteger UIViewAnimationCurveKeyboard = 7;
