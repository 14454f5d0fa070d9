#include <algorithm>
#include <cstring>
#include <string_view>

#include "host/quartzcore/value.h"
#include "host/quartzcore/value_categories.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CAValue.h"

namespace host::quartzcore {
namespace {

template <class T>
objc::Object boxed(objc::Object cls, T value) {
  return objc::send<objc::Object>(cls, "valueWithBytes:objCType:"_sel,
                                  static_cast<const void*>(&value), objc::Encode<T>::text.c_str());
}

/// Reads what the value holds when it is as large as a `T`, and zero otherwise.
template <class T>
T unboxed(NSValue value) {
  T result{};
  const std::string_view type = objc::send<const char*>(value, "objCType"_sel);
  if (std::count(type.begin(), type.end(), 'd') * sizeof(double) == sizeof(T))
    objc::send<>(value, "getValue:"_sel, static_cast<void*>(&result));
  return result;
}

std::optional<Value> from_geometry(NSValue value) {
  const std::string_view type = objc::send<const char*>(value, "objCType"_sel);
  switch (std::count(type.begin(), type.end(), 'd')) {
    case 2:
      return unboxed<CGPoint>(value);
    case 4:
      return unboxed<CGRect>(value);
    case 6:
      return CATransform3DMakeAffineTransform(unboxed<CGAffineTransform>(value));
    case 16:
      return unboxed<CATransform3D>(value);
    default:
      return std::nullopt;
  }
}

std::optional<Value> from_array(NSArray array) {
  std::vector<double> numbers;
  for (NSObject element : array.of<NSObject>()) {
    if (!element.isKindOfClass(NSNumber::cls())) return std::nullopt;
    numbers.push_back(objc::cast<NSNumber>(element).doubleValue());
  }
  return numbers;
}

objc::Object array_of(const std::vector<double>& numbers) {
  const NSMutableArray array = NSMutableArray::arrayWithCapacity(numbers.size());
  for (double number : numbers)
    array.addObject(NSNumber::numberWithDouble(number));
  return array;
}

}  // namespace

std::optional<Value> value_from_object(objc::Object object) {
  if (!object) return std::nullopt;
  if (is_color(object)) return objc::state_of<Color>(object).rgba;
  const auto any = objc::cast<NSObject>(object);
  if (any.isKindOfClass(NSNumber::cls())) return objc::cast<NSNumber>(object).doubleValue();
  if (any.isKindOfClass(NSArray::cls())) return from_array(objc::cast<NSArray>(object));
  if (any.isKindOfClass(NSValue::cls())) return from_geometry(objc::cast<NSValue>(object));
  return std::nullopt;
}

objc::Object object_from_value(const Value& value) {
  const objc::Object cls{NSValue::cls()};
  return std::visit(
      [cls](const auto& held) -> objc::Object {
        using Held = std::remove_cvref_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::monostate>) {
          return nil;
        } else if constexpr (std::is_same_v<Held, double>) {
          return NSNumber::numberWithDouble(held);
        } else if constexpr (std::is_same_v<Held, Rgba>) {
          return objc::send<objc::Object>(object_of(make_color(held)), "autorelease"_sel);
        } else if constexpr (std::is_same_v<Held, std::vector<double>>) {
          return array_of(held);
        } else {
          return boxed(cls, held);
        }
      },
      value);
}

void export_value_categories() {
  const objc::Class cls = NSValue::cls();
  const objc::Class meta = objc::class_of(reinterpret_cast<objc::Id>(cls));
  objc::add_method<&boxed<CGPoint>>(meta, "valueWithCGPoint:");
  objc::add_method<&boxed<CGSize>>(meta, "valueWithCGSize:");
  objc::add_method<&boxed<CGRect>>(meta, "valueWithCGRect:");
  objc::add_method<&boxed<CATransform3D>>(meta, "valueWithCATransform3D:");
  objc::add_method<&unboxed<CGPoint>>(cls, "CGPointValue");
  objc::add_method<&unboxed<CGSize>>(cls, "CGSizeValue");
  objc::add_method<&unboxed<CGRect>>(cls, "CGRectValue");
  objc::add_method<&unboxed<CATransform3D>>(cls, "CATransform3DValue");
}

}  // namespace host::quartzcore
