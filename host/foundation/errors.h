#pragma once

#include <string>
#include <system_error>

#include "platform/Foundation/NSObject.h"

namespace host::foundation {

// Each returns an NSError.

/// For a property list that cannot be read or written.
objc::Object property_list_error(const std::string& reason);
/// For a call of the system that has failed.
objc::Object system_error(const std::error_code& error);

}  // namespace host::foundation
