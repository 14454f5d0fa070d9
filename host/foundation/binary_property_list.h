#pragma once

#include <string_view>

#include "platform/Foundation/NSString.h"

namespace host::foundation {

bool is_binary_property_list(std::string_view bytes);

/// Returns the autoreleased contents of a binary property list; nil when it is damaged in any way.
objc::Object binary_property_list(std::string_view bytes);

}  // namespace host::foundation
