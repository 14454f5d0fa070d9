#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// Replaces `applicationDidFinishLaunching:` and starts the extension.
void launched(SpringBoard self, objc::Object application);

}  // namespace sonavue
