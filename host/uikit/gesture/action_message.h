#pragma once

#include "objc/send.h"

namespace host::uikit {

/// Sends an action with as many arguments as its selector takes: none, the sender, or the sender
/// and the event. A target that does not respond to it gets nothing. Returns whether it does.
bool send_action_message(objc::Object target, objc::Sel action, objc::Object sender,
                         objc::Object event);

}  // namespace host::uikit
