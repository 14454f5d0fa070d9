#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UITextInputTraits.h"

namespace host::uikit {

/// Returns whether a letter typed after this text should be a capital.
bool capital_is_due(NSString before, UITextAutocapitalizationType type);

}  // namespace host::uikit
