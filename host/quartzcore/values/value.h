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

/// `value` in the shape of `pattern`: two numbers may be a point or a size. Nothing when it cannot
/// be.
std::optional<Value> shaped_like(const Value& pattern, const Value& value);

/// The value at `fraction` of the way; transforms turn and scale on their way instead of shearing.
Value interpolate(const Value& from, const Value& to, double fraction);
/// Sums; a transform "added" is applied before the other.
Value add(const Value& base, const Value& addition);
Value subtract(const Value& left, const Value& right);
Value multiply(const Value& value, double factor);

}  // namespace host::quartzcore
