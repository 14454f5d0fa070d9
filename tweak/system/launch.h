#pragma once

#include "platform/SpringBoard/SpringBoard.h"

namespace sonavue {

/// `applicationDidFinishLaunching:`, from which all else starts.
void launched(SpringBoard self, objc::Object application);

}  // namespace sonavue
