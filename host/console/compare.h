#pragma once

#include <optional>
#include <string_view>

#include "host/console/value.h"

namespace host::console {

enum class Comparison { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual, Near };

/// The largest difference of two numbers for `~=`.
inline constexpr long double kNearness = 0.01L;

/// `==`, `!=`, `<`, `<=`, `>`, `>=` or `~=`.
std::optional<Comparison> comparison_named(std::string_view symbol);

/// Returns whether the comparison holds. Empty when the values have no order (only numbers have
/// one) or no distance (only numbers and structures of them do). An NSNumber counts as its number.
/// Nil equals only nil, so a missing view never compares equal to zero.
std::optional<bool> holds(const Value& left, Comparison comparison, const Value& right);

}  // namespace host::console
