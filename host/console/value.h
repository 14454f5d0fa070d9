#pragma once

#include <string>
#include <variant>
#include <vector>

#include "objc/object.h"

namespace host::console {

/// A number as it was written or returned. Every integer and every floating-point number of the
/// platform fits `value` exactly; `form` remembers how it wants to be printed.
struct Number {
  enum class Form { Boolean, Integer, Single, Double };
  long double value = 0;
  Form form = Form::Double;
};

/// The result of a method that has none.
struct Void {};

/// nil of any kind: an object, a class, a pointer.
struct NilValue {};

/// An address that the console hands on without looking behind it.
struct Pointer {
  void* address = nullptr;
};

struct Value;
using Structure = std::vector<Value>;

/// The value of an expression. Objects are borrowed: they live as long as the autorelease pool
/// around the line.
struct Value {
  std::variant<NilValue, Void, Number, objc::Object, objc::Class, Pointer, Structure> content;

  template <class T>
  const T* as() const {
    return std::get_if<T>(&content);
  }
};

Value boolean_value(bool value);
Value number_value(double value);
/// Nil when `object` is nil.
Value object_value(objc::Object object);

}  // namespace host::console
