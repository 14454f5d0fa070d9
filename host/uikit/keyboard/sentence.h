#pragma once

#include "platform/Foundation/NSString.h"
#include "platform/UIKit/UITextInputTraits.h"

namespace host::uikit {

/// Is the letter typed after this text to be a capital?
bool capital_is_due(NSString before, UITextAutocapitalizationType type);

}  // namespace host::uikit
