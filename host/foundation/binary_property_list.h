#pragma once

#include <string_view>

#include "platform/Foundation/NSString.h"

namespace host::foundation {

bool is_binary_property_list(std::string_view bytes);

/// What such a list holds; nil when it is damaged in any way. Autoreleased.
objc::Object binary_property_list(std::string_view bytes);

}  // namespace host::foundation
