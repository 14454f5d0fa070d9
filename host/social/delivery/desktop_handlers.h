#pragma once

#include <string>

namespace host::social {

/// Returns whether a program of the desktop is registered for addresses of this scheme. Asks
/// `xdg-mime`, without a shell; returns false when it does not answer within two seconds.
bool desktop_handles(const std::string& scheme);

}  // namespace host::social
