#include "host/quartzcore/values/value.h"

#include <algorithm>
#include <span>
#include <type_traits>

#include "host/quartzcore/values/transform_parts.h"

namespace host::quartzcore {
namespace {

/// The numbers that make up a value.
std::span<double> numbers(Value& value) {
  return std::visit(
      [](auto& held) -> std::span<double> {
        using Held = std::remove_reference_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::monostate>) {
          return {};
        } else if constexpr (std::is_same_v<Held, std::vector<double>>) {
          return held;
        } else {
          return {reinterpret_cast<double*>(&held), sizeof(Held) / sizeof(double)};
        }
      },
      value);
}

template <class Operation>
Value combine(Value left, const Value& right, Operation operation) {
  Value right_copy = right;
  const std::span<double> to = numbers(left);
  const std::span<double> from = numbers(right_copy);
  for (std::size_t i = 0; i < std::min(to.size(), from.size()); ++i)
    to[i] = operation(to[i], from[i]);
  return left;
}

}  // namespace

std::optional<Value> shaped_like(const Value& pattern, const Value& value) {
  if (pattern.index() == value.index()) return value;
  if (std::holds_alternative<std::monostate>(pattern)) return value;
  Value shaped = pattern;
  Value from = value;
  const std::span<double> to_numbers = numbers(shaped);
  const std::span<double> from_numbers = numbers(from);
  if (to_numbers.size() != from_numbers.size()) return std::nullopt;
  std::copy(from_numbers.begin(), from_numbers.end(), to_numbers.begin());
  return shaped;
}

Value interpolate(const Value& from, const Value& to, double fraction) {
  const auto* from_transform = std::get_if<CATransform3D>(&from);
  const auto* to_transform = std::get_if<CATransform3D>(&to);
  if (from_transform && to_transform)
    return interpolate_transforms(*from_transform, *to_transform, fraction);
  return combine(from, to, [fraction](double a, double b) { return a + (b - a) * fraction; });
}

Value add(const Value& base, const Value& addition) {
  const auto* base_transform = std::get_if<CATransform3D>(&base);
  const auto* added_transform = std::get_if<CATransform3D>(&addition);
  if (base_transform && added_transform)
    return CATransform3DConcat(*added_transform, *base_transform);
  return combine(base, addition, [](double a, double b) { return a + b; });
}

Value subtract(const Value& left, const Value& right) {
  const auto* left_transform = std::get_if<CATransform3D>(&left);
  const auto* right_transform = std::get_if<CATransform3D>(&right);
  if (left_transform && right_transform)
    return CATransform3DConcat(*left_transform, CATransform3DInvert(*right_transform));
  return combine(left, right, [](double a, double b) { return a - b; });
}

Value multiply(const Value& value, double factor) {
  if (std::holds_alternative<CATransform3D>(value)) return value;
  return combine(value, value, [factor](double a, double) { return a * factor; });
}

}  // namespace host::quartzcore
