#pragma once

#include <optional>
#include <string>

#include "host/console/value.h"

namespace host::console {

/// What an NSNumber holds; nothing for every other object.
std::optional<Number> number_in(objc::Object object);
/// What an NSString holds, as UTF-8; nothing for every other object.
std::optional<std::string> text_in(objc::Object object);
/// The structure or pointer that an NSValue holds; nothing for every other object.
std::optional<Value> value_in(objc::Object object);

}  // namespace host::console
