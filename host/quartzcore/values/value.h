#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "host/quartzcore/values/rgba.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/QuartzCore/CATransform3D.h"

namespace host::quartzcore {

/// Anything that an animation can move between.
using Value = std::variant<std::monostate, double, CGPoint, CGSize, CGRect, CATransform3D, Rgba,
                           std::vector<double>>;

/// Converts `value` to the type of `pattern`: two numbers may become a point or a size. Returns
/// nothing when it cannot be converted.
std::optional<Value> shaped_like(const Value& pattern, const Value& value);

/// Returns the value at `fraction` of the way. Transforms rotate and scale instead of shearing.
Value interpolate(const Value& from, const Value& to, double fraction);
/// Returns the sum. A transform is "added" by applying it before the other.
Value add(const Value& base, const Value& addition);
Value subtract(const Value& left, const Value& right);
Value multiply(const Value& value, double factor);

}  // namespace host::quartzcore
