#pragma once

#include <optional>
#include <string>

#include "host/console/type_encoding.h"
#include "host/console/value.h"

namespace host::console {

/// Converts `value` to `type` and writes it to `destination`, which has room for it. Returns the
/// reason when it cannot be converted; the contents of `destination` are undefined then.
///
/// A number becomes an NSNumber for an object, a text becomes a selector or a C string, and braces
/// become a structure with the same number of members.
std::optional<std::string> store(const Value& value, const Type& type, void* destination);

/// Reads a value of this type at `source`.
Value load(const Type& type, const void* source);

}  // namespace host::console
