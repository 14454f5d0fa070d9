#pragma once

#include <optional>
#include <string_view>

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSString.h"

// The physical keyboard: typed text goes to the first responder, as that of the on-screen keyboard
// does.
namespace host::uikit {

/// Types the text one whole character at a time; a line feed acts as the return key. Returns false
/// when no responder takes text.
bool type_text(NSString text);

/// Replaces the text that an input method is still composing; `caret` is in UTF-16 units from its
/// start. Typing then replaces the composed text.
bool compose_text(NSString text, NSUInteger caret);

/// Presses `return`, `backspace`, `escape`, or a key that moves the caret or acts on the selection:
/// `left`, `right`, `home`, `end`, and in text of several lines `up` or `down`, optionally prefixed
/// with `shift-` or `control-`; and `control-a`, `-c`, `-x` and `-v`. Returns false for an unknown
/// key, or when no responder handles it. A class implements `_pressKey:`, which returns whether the
/// key did something.
bool press_key(std::string_view name);

/// Returns where typed text goes, on the screen; nothing when no responder takes text. A class
/// implements `_caretFrame`, in its own coordinates, or is such a place as a whole.
std::optional<CGRect> caret_on_screen();

/// Calls `observer` after each successful call of one of these functions: the on-screen keyboard
/// follows what is typed on the physical one.
void observe_typing(void (*observer)());

}  // namespace host::uikit
