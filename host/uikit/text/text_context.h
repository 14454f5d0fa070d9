#pragma once

#include "platform/Foundation/NSString.h"

namespace host::uikit {

/// What stands before the caret of the first responder; nil when nobody takes text or it cannot be
/// known. A class answers `_textBeforeCaret`, or `hasText` at least.
NSString text_before_caret();

}  // namespace host::uikit
