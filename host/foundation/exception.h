#pragma once

#include <string>

#include "platform/Foundation/NSString.h"

namespace host::foundation {

/// Raises an NSException with this name, such as "NSInvalidArgumentException".
[[noreturn]] void raise(NSString name, const std::string& reason);

/// Returns "<Class: 0x…>", the way exception reasons describe an object.
std::string plain_description(objc::Object object);

}  // namespace host::foundation
