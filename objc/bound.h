#pragma once

#include "objc/send.h"

#ifdef SONAVUE_BINDING_TABLE
#include "objc/binding_table.h"
#endif

namespace objc {

template <FixedString Name>
inline constinit Class cached_class = nullptr;

/// The class of that name, looked up when first needed; nil, and looked up again, while missing.
template <FixedString Name>
inline Class class_named() {
  if (!cached_class<Name>) [[unlikely]]
    cached_class<Name> = objc_getClass(Name.c_str());
  return cached_class<Name>;
}

/// Base of a typed view of the platform's class `Name`: `struct UILabel : Bound<UILabel, "UILabel",
/// UIView>`. It adds names to a pointer and nothing else.
template <class Self, FixedString Name, Handle Base>
struct Bound : Base {
  using Superclass = Base;

  static Class cls() { return class_named<Name>(); }
  static const char* class_name() { return Name.c_str(); }
  static Self alloc() { return send<Self>(Object(cls()), "alloc"_sel); }

  Self init() const { return send<Self>(*this, "init"_sel); }
  Self retain() const { return send<Self>(*this, "retain"_sel); }
  Self autorelease() const { return send<Self>(*this, "autorelease"_sel); }
  void release() const { send<>(*this, "release"_sel); }

 protected:
  /// Sends an instance method of this class.
  template <FixedString Selector, class Result = void, class... Arguments>
  Result call(const Arguments&... arguments) const {
    note<Selector, false, Result, Arguments...>();
    return send<Result>(*this, selector<Selector>(), arguments...);
  }

  /// Sends a class method of this class.
  template <FixedString Selector, class Result = void, class... Arguments>
  static Result call_class(const Arguments&... arguments) {
    note<Selector, true, Result, Arguments...>();
    return send<Result>(Object(cls()), selector<Selector>(), arguments...);
  }

 private:
  template <FixedString Selector, bool OfClass, class Result, class... Arguments>
  static void note() {
#ifdef SONAVUE_BINDING_TABLE
    static_cast<void>(
        &NotedBinding<Name, Selector, OfClass, MethodEncoding<Result, Arguments...>::text>::noted);
#endif
  }
};

}  // namespace objc
