#include "host/console/compare.h"

#include <cmath>

#include "host/console/objects.h"
#include "platform/Foundation/NSObject.h"

namespace host::console {
namespace {

struct Symbol {
  std::string_view text;
  Comparison comparison;
};

constexpr Symbol kComparisonSymbols[] = {
    {"==", Comparison::Equal},  {"!=", Comparison::NotEqual},
    {"<", Comparison::Less},    {"<=", Comparison::LessOrEqual},
    {">", Comparison::Greater}, {">=", Comparison::GreaterOrEqual},
    {"~=", Comparison::Near},
};

/// Returns the value, unwrapped if it is an NSNumber or NSValue.
Value plain(const Value& value) {
  const auto* object = value.as<objc::Object>();
  if (!object) return value;
  if (const auto number = number_in(*object)) return {*number};
  if (auto held = value_in(*object)) return *held;
  return value;
}

bool same_objects(objc::Object left, objc::Object right) {
  return left == right || objc::cast<NSObject>(left).isEqual(right);
}

bool equal(const Value& boxed_left, const Value& boxed_right) {
  const Value left = plain(boxed_left);
  const Value right = plain(boxed_right);
  if (left.content.index() != right.content.index()) return false;
  if (const auto* number = left.as<Number>()) return number->value == right.as<Number>()->value;
  if (const auto* object = left.as<objc::Object>())
    return same_objects(*object, *right.as<objc::Object>());
  if (const auto* cls = left.as<objc::Class>()) return *cls == *right.as<objc::Class>();
  if (const auto* pointer = left.as<Pointer>())
    return pointer->address == right.as<Pointer>()->address;
  if (const auto* members = left.as<Structure>()) {
    const auto& others = *right.as<Structure>();
    return std::equal(members->begin(), members->end(), others.begin(), others.end(), equal);
  }
  return true;
}

std::optional<bool> near(const Value& boxed_left, const Value& boxed_right) {
  const Value left = plain(boxed_left);
  const Value right = plain(boxed_right);
  const auto* number = left.as<Number>();
  const auto* other = right.as<Number>();
  if (number && other) return std::fabs(number->value - other->value) <= kNearness;
  const auto* members = left.as<Structure>();
  const auto* others = right.as<Structure>();
  if (!members || !others || members->size() != others->size()) return std::nullopt;
  bool all = true;
  for (std::size_t i = 0; i < members->size(); ++i) {
    const auto element = near((*members)[i], (*others)[i]);
    if (!element) return std::nullopt;
    all = all && *element;
  }
  return all;
}

}  // namespace

std::optional<Comparison> comparison_named(std::string_view symbol) {
  for (const Symbol& known : kComparisonSymbols) {
    if (known.text == symbol) return known.comparison;
  }
  return std::nullopt;
}

std::optional<bool> holds(const Value& left, Comparison comparison, const Value& right) {
  if (comparison == Comparison::Equal) return equal(left, right);
  if (comparison == Comparison::NotEqual) return !equal(left, right);
  if (comparison == Comparison::Near) return near(left, right);
  const Value plain_left = plain(left);
  const Value plain_right = plain(right);
  const auto* a = plain_left.as<Number>();
  const auto* b = plain_right.as<Number>();
  if (!a || !b) return std::nullopt;
  switch (comparison) {
    case Comparison::Less:
      return a->value < b->value;
    case Comparison::LessOrEqual:
      return a->value <= b->value;
    case Comparison::Greater:
      return a->value > b->value;
    default:
      return a->value >= b->value;
  }
}

}  // namespace host::console
