#pragma once

#include "platform/Foundation/NSString.h"

extern "C" {
// Posted by the keyboard, without an object.
extern NSString UIKeyboardWillShowNotification;
extern NSString UIKeyboardDidShowNotification;
extern NSString UIKeyboardWillHideNotification;
extern NSString UIKeyboardDidHideNotification;

// What their userInfo holds.
/// Values with a CGRect, in points of the screen.
extern NSString UIKeyboardFrameBeginUserInfoKey;
extern NSString UIKeyboardFrameEndUserInfoKey;
/// A number: seconds.
extern NSString UIKeyboardAnimationDurationUserInfoKey;
/// A number: a UIViewAnimationCurve.
extern NSString UIKeyboardAnimationCurveUserInfoKey;
}
