#pragma once

#include <string_view>

#include "platform/Foundation/NSString.h"

// The physical keyboard: what is typed goes to the first responder, as the on-screen one's would.
namespace host::uikit {

/// Types the text, one whole character after the other; a line feed is the return key. False when
/// nobody takes text.
bool type_text(NSString text);

/// Text that an input method is still composing, in place of what it composed before; `caret` in
/// UTF-16 units from its start. Typing then replaces it.
bool compose_text(NSString text, NSUInteger caret);

/// Presses `return`, `backspace`, `escape`, `left`, `right`, `home` or `end`. False when the key
/// has another name, or nobody takes it.
bool press_key(std::string_view name);

}  // namespace host::uikit
