#pragma once

#include <string>
#include <string_view>

namespace host::social {

/// Returns the part before the colon, in lower case; empty if the text is not an address.
std::string scheme_of(std::string_view address);

/// Returns whether the address can be opened. Web and mail addresses always can; for any other
/// scheme the desktop is asked whether one of its programs handles it. Without a desktop, text
/// messages go to the outbox, too, and nothing else is opened.
bool can_open_address(const std::string& address);

/// Opens the address on the desktop, or puts it into the outbox. Returns false for a scheme without
/// a handler.
bool open_address(const std::string& address);

}  // namespace host::social
