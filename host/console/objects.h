#pragma once

#include <optional>
#include <string>

#include "host/console/value.h"

namespace host::console {

/// The number in an NSNumber; empty for any other object.
std::optional<Number> number_in(objc::Object object);
/// The text of an NSString, as UTF-8; empty for any other object.
std::optional<std::string> text_in(objc::Object object);
/// The structure or pointer in an NSValue; empty for any other object.
std::optional<Value> value_in(objc::Object object);

}  // namespace host::console
