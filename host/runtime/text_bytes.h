#pragma once

#include <string>

#include "platform/Foundation/NSString.h"

namespace host {

/// The text as valid UTF-8, with a replacement for what has no UTF-8: half of a surrogate pair, for
/// which Foundation's own conversion raises an exception.
std::string utf8_of(NSString text);

}  // namespace host
