#pragma once

#include <string>
#include <variant>
#include <vector>

#include "objc/object.h"

namespace host::console {

/// A number as it was written or returned. `value` represents every integer and floating-point
/// number of the platform exactly; `form` determines how it is printed.
struct Number {
  enum class Form { Boolean, Integer, Single, Double };
  long double value = 0;
  Form form = Form::Double;
};

/// The result of a method that returns nothing.
struct Void {};

/// nil of any kind: an object, a class, a pointer.
struct NilValue {};

/// An address that the console passes on without dereferencing it.
struct Pointer {
  void* address = nullptr;
};

struct Value;
using Structure = std::vector<Value>;

/// The value of an expression. Objects are borrowed: they live as long as the line's autorelease
/// pool.
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
