#pragma once

#include <optional>
#include <string_view>

#include "host/console/value.h"

namespace host::console {

enum class Comparison { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual, Near };

/// How far apart two numbers may be that are near each other.
inline constexpr long double kNearness = 0.01L;

/// `==`, `!=`, `<`, `<=`, `>`, `>=` or `~=`.
std::optional<Comparison> comparison_named(std::string_view symbol);

/// Does the comparison hold? Nothing when the two have no order (only numbers have one) or no
/// distance (only numbers and structures of them do). A number in an NSNumber counts as that
/// number; nil equals nothing but nil, so that a view that is missing never passes for zero.
std::optional<bool> holds(const Value& left, Comparison comparison, const Value& right);

}  // namespace host::console
