#pragma once

#include "objc/bound.h"
#include "objc/class_builder.h"

namespace objc {

/// The class that was made here under that name. Nil where it was not: another may have the name.
template <FixedString Name>
inline constinit Class own_class = nullptr;

/// Base of a typed view of a class of our own, as `Bound` is of the platform's: `struct Row :
/// Own<Row, "Row", UIView>`. Nothing is ever sent to whatever else has its name; where the
/// class was not made, all that is sent to it or to its objects is sent to nil.
template <class Self, FixedString Name, Handle Base>
struct Own : Bound<Self, Name, Base> {
  static Class cls() { return own_class<Name>; }
  static Self alloc() { return send<Self>(Object(cls()), "alloc"_sel); }
  static void keep(Class made) { own_class<Name> = made; }

 protected:
  template <FixedString Selector, class Result = void, class... Arguments>
  static Result call_class(const Arguments&...) = delete;
};

template <class T>
concept OwnHandle = Handle<T> && requires {
  T::keep(Class());
};

/// Makes the class of a handle: under its name, with its base, and with what `describe` gives to
/// the builder. Neither happens where the name is taken or the base is missing.
template <OwnHandle Self, class Describe>
void make_own_class(Describe describe) {
  using Base = typename Self::Superclass;
  if constexpr (OwnHandle<Base>) {
    if (!Base::cls()) return;
  }
  ClassBuilder builder(Self::class_name(), Base::class_name());
  describe(builder);
  Self::keep(builder.finish());
}

}  // namespace objc
