#include "host/quartzcore/animations/value_objects.h"

#include <cstring>

#include "host/quartzcore/drawing/color.h"
#include "objc/class_builder.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CAValue.h"

namespace host::quartzcore {
namespace {

struct CAGeometryValue : objc::Bound<CAGeometryValue, "CAGeometryValue", NSValue> {};

/// The desktop's Foundation loses half of a point that is boxed by its bytes, so geometry gets its
/// own value class.
class GeometryValue : public objc::Implementation<GeometryValue, CAGeometryValue> {
 public:
  explicit GeometryValue(CAGeometryValue owner) : Implementation(owner) {}

  Value value;

  const char* type() const {
    return visit([](const auto& held) { return encoding_of(held); });
  }
  void get_value(void* place) const {
    visit([place](const auto& held) {
      std::memcpy(place, &held, sizeof held);
      return nullptr;
    });
  }
  BOOL is_equal(objc::Object other) const {
    return other && objc::cast<NSObject>(other).isKindOfClass(CAGeometryValue::cls()) &&
           objc::state_of<GeometryValue>(other).value == value;
  }
  NSUInteger hash() const { return value.index(); }
  // Immutable: a copy may be the same object.
  objc::Object copy_with_zone(void*) const { return self.retain(); }

 private:
  template <class T>
  static const char* encoding_of(const T&) {
    return objc::Encode<T>::text.c_str();
  }
  template <class Visitor>
  const char* visit(Visitor visitor) const {
    if (const auto* point = std::get_if<CGPoint>(&value)) return visitor(*point);
    if (const auto* size = std::get_if<CGSize>(&value)) return visitor(*size);
    if (const auto* rect = std::get_if<CGRect>(&value)) return visitor(*rect);
    return visitor(std::get<CATransform3D>(value));
  }
};

template <class T>
objc::Object boxed(objc::Object, T value) {
  const auto made = CAGeometryValue::alloc().init();
  objc::state_of<GeometryValue>(made).value = value;
  return made.autorelease();
}

/// Reads a value boxed by this host; zero for any other kind.
template <class T>
T unboxed(NSValue value) {
  if (!value.isKindOfClass(CAGeometryValue::cls())) return T{};
  const T* held = std::get_if<T>(&objc::state_of<GeometryValue>(value).value);
  return held ? *held : T{};
}

std::optional<Value> from_geometry(NSValue value) {
  if (!value.isKindOfClass(CAGeometryValue::cls())) return std::nullopt;
  return objc::state_of<GeometryValue>(value).value;
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
  return std::visit(
      [](const auto& held) -> objc::Object {
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
          return boxed(objc::Object(), held);
        }
      },
      value);
}

void export_value_categories() {
  objc::ClassBuilder("CAGeometryValue", "NSValue")
      .state<GeometryValue>()
      .method<&GeometryValue::type>("objCType")
      .method<&GeometryValue::get_value>("getValue:")
      .method<&GeometryValue::is_equal>("isEqual:")
      .method<&GeometryValue::is_equal>("isEqualToValue:")
      .method<&GeometryValue::hash>("hash")
      .method<&GeometryValue::copy_with_zone>("copyWithZone:")
      .finish();
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
