#pragma once

#include "objc/image.h"
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

/// The same for a class whose framework or library may not be in the process yet: while the class
/// is missing, each look-up first loads the file at the path `Image`.
template <FixedString Name, FixedString Image>
inline Class class_of_image() {
  if (!class_named<Name>()) [[unlikely]]
    load_image(Image.c_str());
  return class_named<Name>();
}

/// Base of a typed view of the platform's class `Name`: `struct UILabel : Bound<UILabel, "UILabel",
/// UIView>`. It adds names to a pointer and nothing else. `Image` is named for the classes that no
/// process of the phone is sure to have.
template <class Self, FixedString Name, Handle Base, FixedString Image = "">
struct Bound : Base {
  using Superclass = Base;

  static Class cls() {
    if constexpr (Image.size() == 0) {
      return class_named<Name>();
    } else {
      return class_of_image<Name, Image>();
    }
  }
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
