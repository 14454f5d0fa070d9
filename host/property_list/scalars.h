#pragma once

#include <string_view>

#include "host/property_list/builder.h"

namespace host::property_list {

// Numbers and dates as the forms of characters write them, with spaces around them. Nil for any
// other text.

/// A decimal or, after `0x`, hexadecimal number with a sign.
objc::Object integer_from(std::string_view text, Builder& builder);
objc::Object real_from(std::string_view text, Builder& builder);
/// `2001-01-01T00:00:09Z`, or `2001-01-01 00:00:09 +0100`.
objc::Object date_from(std::string_view text, Builder& builder);

}  // namespace host::property_list
