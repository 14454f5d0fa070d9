#include "host/uikit/keyboard/keyboard_notifications.h"

#include "platform/Foundation/NSNotificationCenter.h"
#include "platform/QuartzCore/CAValue.h"
#include "platform/UIKit/UIViewEnumerations.h"

[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardWillShowNotification;
[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardDidShowNotification;
[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardWillHideNotification;
[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardDidHideNotification;
[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardFrameBeginUserInfoKey;
[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardFrameEndUserInfoKey;
[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardAnimationDurationUserInfoKey;
[[gnu::visibility("default"), gnu::used]] NSString UIKeyboardAnimationCurveUserInfoKey;

namespace host::uikit {

void post_keyboard_notification(NSString name, const KeyboardMove& move) {
  const NSMutableDictionary info = NSMutableDictionary::dictionary();
  info.setObject(CAValue::valueWithCGRect(move.begin), UIKeyboardFrameBeginUserInfoKey);
  info.setObject(CAValue::valueWithCGRect(move.end), UIKeyboardFrameEndUserInfoKey);
  info.setObject(NSNumber::numberWithDouble(move.duration), UIKeyboardAnimationDurationUserInfoKey);
  info.setObject(NSNumber::numberWithInteger(UIViewAnimationCurveKeyboard),
                 UIKeyboardAnimationCurveUserInfoKey);
  NSNotificationCenter::defaultCenter().postNotificationName(name, objc::Object(), info);
}

void name_keyboard_notifications() {
  UIKeyboardWillShowNotification = "UIKeyboardWillShowNotification"_ns;
  UIKeyboardDidShowNotification = "UIKeyboardDidShowNotification"_ns;
  UIKeyboardWillHideNotification = "UIKeyboardWillHideNotification"_ns;
  UIKeyboardDidHideNotification = "UIKeyboardDidHideNotification"_ns;
  UIKeyboardFrameBeginUserInfoKey = "UIKeyboardFrameBeginUserInfoKey"_ns;
  UIKeyboardFrameEndUserInfoKey = "UIKeyboardFrameEndUserInfoKey"_ns;
  UIKeyboardAnimationDurationUserInfoKey = "UIKeyboardAnimationDurationUserInfoKey"_ns;
  UIKeyboardAnimationCurveUserInfoKey = "UIKeyboardAnimationCurveUserInfoKey"_ns;
}

}  // namespace host::uikit
