#pragma once

#include <string>

#include "platform/Foundation/NSObject.h"

namespace host::foundation {

/// The NSError of a property list that cannot be read or written.
objc::Object property_list_error(const std::string& reason);

}  // namespace host::foundation
