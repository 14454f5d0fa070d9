#pragma once

#include "platform/UIKit/UIEvent.h"

namespace host::uikit {

/// Sends a control's action: to the target, or up the responder chain where there is none.
bool send_action(objc::Sel action, objc::Object target, objc::Object sender, UIEvent event);

}  // namespace host::uikit
