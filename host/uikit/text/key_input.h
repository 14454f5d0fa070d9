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

/// Presses `return`, `backspace` or `escape`, or a key that moves the caret or works on what is
/// selected: `left`, `right`, `home`, `end`, in text of several lines `up` or `down`; also behind
/// `shift-` and `control-`, and `control-a`, `-c`, `-x` and `-v`. False when the key has another
/// name, or nobody takes it. A class answers `_pressKey:` with whether the key did something.
bool press_key(std::string_view name);

/// Calls `observer` whenever one of these has been taken: the on-screen keyboard follows what is
/// typed on the physical one.
void observe_typing(void (*observer)());

}  // namespace host::uikit
