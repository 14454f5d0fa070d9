#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/UIKit/UIKeyboardNotifications.h"

namespace host::uikit {

/// One move of the keyboard, in points of the screen and seconds.
struct KeyboardMove {
  CGRect begin;
  CGRect end;
  double duration = 0;
};

void post_keyboard_news(NSString name, const KeyboardMove& move);

/// Gives the platform's constants their values.
void name_keyboard_notifications();

}  // namespace host::uikit
