#pragma once

#include <string>
#include <string_view>

namespace host::social {

/// What comes before the colon, in small letters; empty for what is no address.
std::string scheme_of(std::string_view address);

/// Is there somebody for addresses of this kind? The web and letters always find a way; for any
/// other scheme the desktop is asked whether one of its programs has said that it is for it.
/// Without a desktop texts for the telephone go to the outbox, too, and nothing else does.
bool can_open_address(const std::string& address);

/// Opens it on the desktop, or leaves it in the outbox. False for a scheme that nobody is there
/// for.
bool open_address(const std::string& address);

}  // namespace host::social
