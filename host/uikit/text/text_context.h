#pragma once

#include "platform/Foundation/NSString.h"

namespace host::uikit {

/// Returns the text before the caret of the first responder; nil when no responder takes text or
/// the text is unknown. A class implements `_textBeforeCaret`, or at least `hasText`.
NSString text_before_caret();

}  // namespace host::uikit
