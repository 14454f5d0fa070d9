#pragma once

#include <string>

namespace host::social {

/// Has a program of the desktop said that it is for addresses of this scheme? Asked of `xdg-mime`,
/// which no shell comes between; no, when it does not answer within a moment.
bool desktop_handles(const std::string& scheme);

}  // namespace host::social
