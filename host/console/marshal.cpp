#include "host/console/marshal.h"

#include <fmt/format.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "host/runtime/text_bytes.h"
#include "objc/send.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace host::console {
namespace {

using Refusal = std::optional<std::string>;

template <class T>
void put(void* destination, T value) {
  std::memcpy(destination, &value, sizeof value);
}

template <class T>
T get(const void* source) {
  T value;
  std::memcpy(&value, source, sizeof value);
  return value;
}

/// Calls `use` with a zero of the C type that the letter encodes.
template <class Use>
auto with_number_type(char code, Use use) {
  switch (code) {
    case 'c':
      return use(static_cast<signed char>(0));
    case 'C':
      return use(static_cast<unsigned char>(0));
    case 'B':
      return use(false);
    case 's':
      return use(short{});
    case 'S':
      return use(static_cast<unsigned short>(0));
    case 'i':
      return use(0);
    case 'I':
      return use(0u);
    case 'l':
      return use(0L);
    case 'L':
      return use(0UL);
    case 'q':
      return use(0LL);
    case 'Q':
      return use(0ULL);
    case 'f':
      return use(0.0f);
    default:
      return use(0.0);
  }
}

bool is_number(const Type& type) {
  return type.is_integer() || type.code == 'f' || type.code == 'd';
}

Refusal store_number(const Value& value, const Type& type, void* destination) {
  const Number* number = value.as<Number>();
  if (!number) return "a number is needed here";
  return with_number_type(type.code, [&]<class T>(T) -> Refusal {
    if constexpr (std::is_integral_v<T>) {
      if (number->value != std::trunc(number->value)) return "a whole number is needed here";
      if (number->value < static_cast<long double>(std::numeric_limits<T>::min()) ||
          number->value > static_cast<long double>(std::numeric_limits<T>::max())) {
        return "the number does not fit its type here";
      }
    }
    put(destination, static_cast<T>(number->value));
    return std::nullopt;
  });
}

NSNumber boxed(const Number& number) {
  switch (number.form) {
    case Number::Form::Boolean:
      return NSNumber::numberWithBool(number.value != 0 ? YES : NO);
    case Number::Form::Integer:
      if (number.value > static_cast<long double>(std::numeric_limits<long>::max())) {
        return NSNumber::numberWithUnsignedLongLong(static_cast<unsigned long long>(number.value));
      }
      return NSNumber::numberWithInteger(static_cast<NSInteger>(number.value));
    case Number::Form::Single:
      return NSNumber::numberWithFloat(static_cast<float>(number.value));
    default:
      return NSNumber::numberWithDouble(static_cast<double>(number.value));
  }
}

Refusal store_object(const Value& value, void* destination) {
  objc::Object object;
  if (const auto* given = value.as<objc::Object>()) {
    object = *given;
  } else if (const auto* cls = value.as<objc::Class>()) {
    object = objc::Object(*cls);
  } else if (const auto* number = value.as<Number>()) {
    object = boxed(*number);
  } else if (!value.as<NilValue>()) {
    return "an object is needed here";
  }
  put(destination, object.id());
  return std::nullopt;
}

/// The text of an NSString, for the rest of the turn; nullptr for any other value.
const char* c_string_of(const Value& value) {
  const auto* object = value.as<objc::Object>();
  if (!object) return nullptr;
  const auto text = objc::cast<NSString>(*object);
  if (!text.isKindOfClass(NSString::cls())) return nullptr;
  return NSString::stringWithUTF8String(utf8_of(text).c_str()).UTF8String();
}

Refusal store_text(const Value& value, const Type& type, void* destination) {
  const char* text = c_string_of(value);
  if (!text && !value.as<NilValue>()) return "a text is needed here";
  if (type.code == ':') {
    put(destination, text ? sel_registerName(text) : nullptr);
  } else {
    put(destination, text);
  }
  return std::nullopt;
}

Refusal store_class(const Value& value, void* destination) {
  const auto* cls = value.as<objc::Class>();
  if (!cls && !value.as<NilValue>()) return "a class is needed here";
  put(destination, cls ? *cls : nullptr);
  return std::nullopt;
}

Refusal store_pointer(const Value& value, void* destination) {
  const auto* pointer = value.as<Pointer>();
  if (!pointer && !value.as<NilValue>()) return "a pointer is needed here";
  put(destination, pointer ? pointer->address : nullptr);
  return std::nullopt;
}

Refusal store_structure(const Value& value, const Type& type, void* destination) {
  const auto* given = value.as<Structure>();
  if (!given || given->size() != type.members.size()) {
    return fmt::format("{} needs {} values in braces here", type.structure, type.members.size());
  }
  for (std::size_t i = 0; i < given->size(); ++i) {
    const Type& member = type.members[i];
    auto refusal = store((*given)[i], member, static_cast<char*>(destination) + member.offset);
    if (refusal) return refusal;
  }
  return std::nullopt;
}

Value load_number(const Type& type, const void* source) {
  return with_number_type(type.code, [&]<class T>(T) -> Value {
    const auto value = static_cast<long double>(get<T>(source));
    if constexpr (std::is_same_v<T, float>) return {Number{value, Number::Form::Single}};
    if constexpr (std::is_same_v<T, double>) return {Number{value, Number::Form::Double}};
    // The platform's BOOL is passed as one byte.
    const bool boolean = sizeof(T) == 1 && (value == 0 || value == 1);
    return {Number{value, boolean ? Number::Form::Boolean : Number::Form::Integer}};
  });
}

Value load_text(const char* text) {
  if (!text) return {NilValue{}};
  return object_value(NSString::stringWithUTF8String(text));
}

}  // namespace

Refusal store(const Value& value, const Type& type, void* destination) {
  if (is_number(type)) return store_number(value, type, destination);
  switch (type.code) {
    case '@':
      return store_object(value, destination);
    case '#':
      return store_class(value, destination);
    case ':':
    case '*':
      return store_text(value, type, destination);
    case '^':
      return store_pointer(value, destination);
    case '{':
      return store_structure(value, type, destination);
    default:
      return "the console cannot make a value of this type";
  }
}

Value load(const Type& type, const void* source) {
  if (is_number(type)) return load_number(type, source);
  switch (type.code) {
    case 'v':
      return {Void{}};
    case '@':
      return object_value(objc::Object(get<objc::Id>(source)));
    case '#':
      if (const auto cls = get<objc::Class>(source)) return {cls};
      return {NilValue{}};
    case ':': {
      const auto selector = get<objc::Sel>(source);
      return load_text(selector ? sel_getName(selector) : nullptr);
    }
    case '*':
      return load_text(get<const char*>(source));
    case '^':
      if (void* address = get<void*>(source)) return {Pointer{address}};
      return {NilValue{}};
    default:
      break;
  }
  Structure members;
  for (const Type& member : type.members)
    members.push_back(load(member, static_cast<const char*>(source) + member.offset));
  return {std::move(members)};
}

}  // namespace host::console
