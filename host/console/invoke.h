#pragma once

#include <span>

#include "host/console/result.h"
#include "host/console/type_encoding.h"
#include "host/console/value.h"

namespace host::console {

/// Sends `selector`, whose method has these types, to a non-nil receiver. The arguments are already
/// converted: each entry points to a value of its type. Returns a problem when the message raises
/// an exception.
Result<Value> invoke(objc::Id receiver, objc::Sel selector, const MethodTypes& types,
                     std::span<void* const> arguments);

}  // namespace host::console
