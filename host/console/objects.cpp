#include "host/console/objects.h"

#include "host/console/marshal.h"
#include "host/runtime/text_bytes.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace host::console {
namespace {

template <class T>
bool is_a(objc::Object object) {
  return objc::cast<NSObject>(object).isKindOfClass(T::cls());
}

}  // namespace

std::optional<Number> number_in(objc::Object object) {
  if (!is_a<NSNumber>(object)) return std::nullopt;
  const auto number = objc::cast<NSNumber>(object);
  const char code = *objc::send<const char*>(number, "objCType"_sel);
  switch (code) {
    case 'c':
    case 'C':
    case 'B': {
      const int value = number.intValue();
      const bool boolean = value == 0 || value == 1;
      return Number{static_cast<long double>(value),
                    boolean ? Number::Form::Boolean : Number::Form::Integer};
    }
    case 'f':
      return Number{number.floatValue(), Number::Form::Single};
    case 'd':
      return Number{number.doubleValue(), Number::Form::Double};
    case 'L':
    case 'Q':
      return Number{static_cast<long double>(number.unsignedLongLongValue()),
                    Number::Form::Integer};
    default:
      return Number{static_cast<long double>(number.integerValue()), Number::Form::Integer};
  }
}

std::optional<std::string> text_in(objc::Object object) {
  if (!is_a<NSString>(object)) return std::nullopt;
  return utf8_of(objc::cast<NSString>(object));
}

std::optional<Value> value_in(objc::Object object) {
  if (!is_a<NSValue>(object) || is_a<NSNumber>(object)) return std::nullopt;
  const auto type = parse_type(objc::send<const char*>(object, "objCType"_sel));
  if (!type || type->size == 0) return std::nullopt;
  std::vector<std::max_align_t> room(type->size / sizeof(std::max_align_t) + 1);
  objc::send<>(object, "getValue:"_sel, static_cast<void*>(room.data()));
  return load(*type, room.data());
}

}  // namespace host::console
