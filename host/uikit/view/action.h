#pragma once

#include "platform/UIKit/UIEvent.h"

namespace host::uikit {

/// Sends a control's action to the target, or up the responder chain when the target is nil.
bool send_action(objc::Sel action, objc::Object target, objc::Object sender, UIEvent event);

}  // namespace host::uikit
