#pragma once

#include <string>

#include "platform/Foundation/NSString.h"

namespace host::foundation {

/// Raises an NSException of that name, such as "NSInvalidArgumentException".
[[noreturn]] void raise(NSString name, const std::string& reason);

/// "<Class: 0x…>", as reasons name an object.
std::string plain_description(objc::Object object);

}  // namespace host::foundation
