#pragma once

#include <optional>
#include <string>

#include "host/console/type_encoding.h"
#include "host/console/value.h"

namespace host::console {

/// Writes `value` as a `type` to `destination`, which has room for it. Gives the reason when the
/// value cannot be one; then nothing that matters was written.
///
/// A number given for an object becomes an NSNumber, a text given for a selector or a C string
/// becomes that, and braces become a structure with as many members.
std::optional<std::string> store(const Value& value, const Type& type, void* destination);

/// The value of the `type` at `source`.
Value load(const Type& type, const void* source);

}  // namespace host::console
