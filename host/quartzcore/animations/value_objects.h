#pragma once

#include <optional>

#include "host/quartzcore/values/value.h"
#include "objc/object.h"

namespace host::quartzcore {

/// Returns the value of an NSNumber, NSValue, CGColor or NSArray of NSNumbers; nothing for other
/// objects.
std::optional<Value> value_from_object(objc::Object object);
/// Returns an autoreleased object with this value; nil for no value.
objc::Object object_from_value(const Value& value);

/// Adds the methods for points, sizes, rectangles and transforms to NSValue.
void export_value_categories();

}  // namespace host::quartzcore
