#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIKeyboardNotifications.h"

namespace host::uikit {

/// One movement of the keyboard, in screen coordinates and seconds.
struct KeyboardMove {
  CGRect begin;
  CGRect end;
  double duration = 0;
};

void post_keyboard_notification(NSString name, const KeyboardMove& move);

/// Sets the values of the platform's constants.
void name_keyboard_notifications();

}  // namespace host::uikit
