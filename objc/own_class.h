#pragma once

#include "objc/bound.h"
#include "objc/class_builder.h"

namespace objc {

/// The class that this library made under that name. Nil if it could not be made, as when another
/// library has taken the name.
template <FixedString Name>
inline constinit Class own_class = nullptr;

/// Base of a typed view of one of our own classes, as `Bound` is for the platform's: `struct Row :
/// Own<Row, "Row", UIView>`. A foreign class with the same name never receives a message through
/// it; if our class was not made, messages to it and to its objects go to nil.
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

/// Makes the class of a handle, with the handle's name and base; `describe` adds the rest to the
/// builder. No class is made if the name is taken or the base is missing.
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
