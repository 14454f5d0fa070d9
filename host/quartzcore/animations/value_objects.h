#pragma once

#include <optional>

#include "host/quartzcore/values/value.h"
#include "objc/object.h"

namespace host::quartzcore {

/// What an NSNumber, NSValue, CGColor or NSArray of NSNumbers says; nothing for other objects.
std::optional<Value> value_from_object(objc::Object object);
/// An autoreleased object that says the same; nil for no value.
objc::Object object_from_value(const Value& value);

/// Teaches NSValue to hold points, sizes, rectangles and transforms.
void export_value_categories();

}  // namespace host::quartzcore
