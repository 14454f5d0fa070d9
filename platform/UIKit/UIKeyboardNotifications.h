#pragma once

#include "platform/Foundation/NSString.h"

extern "C" {
// Posted by the keyboard; the notification's object is nil.
extern NSString UIKeyboardWillShowNotification;
extern NSString UIKeyboardDidShowNotification;
extern NSString UIKeyboardWillHideNotification;
extern NSString UIKeyboardDidHideNotification;

// Keys of their userInfo.
/// An NSValue with a CGRect, in screen points.
extern NSString UIKeyboardFrameBeginUserInfoKey;
extern NSString UIKeyboardFrameEndUserInfoKey;
/// A number, in seconds.
extern NSString UIKeyboardAnimationDurationUserInfoKey;
/// A number: a UIViewAnimationCurve.
extern NSString UIKeyboardAnimationCurveUserInfoKey;
}
