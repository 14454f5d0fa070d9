#pragma once

#include "objc/image.h"
#include "objc/send.h"

#ifdef SONAVUE_BINDING_TABLE
#include "objc/binding_table.h"
#endif
#ifdef SONAVUE_MESSAGE_SYMBOLS
#include "objc/message_text.h"
#endif

namespace objc {

template <FixedString Name>
inline constinit Class cached_class = nullptr;

#ifdef SONAVUE_MESSAGE_SYMBOLS
/// The selector of one binding. The symbol names the message, its class and its types.
template <FixedString Message>
inline constinit Sel cached_message = nullptr;

/// The selector of a message whose receiver is first asked whether it responds.
template <FixedString Message>
inline constinit Sel asked_message = nullptr;
#endif

/// The class with that name. It is looked up at the first use and cached; while it is missing, the
/// result is nil and every call looks it up again.
template <FixedString Name>
inline Class class_named() {
  if (!cached_class<Name>) [[unlikely]]
    cached_class<Name> = objc_getClass(Name.c_str());
  return cached_class<Name>;
}

/// As `class_named`, for a class whose framework or library may not be loaded yet: while the class
/// is missing, each lookup also loads the file at the path `Image`.
template <FixedString Name, FixedString Image>
inline Class class_of_image() {
  if (!class_named<Name>()) [[unlikely]]
    load_image(Image.c_str());
  return class_named<Name>();
}

/// Base of a typed view of the platform's class `Name`: `struct UILabel : Bound<UILabel, "UILabel",
/// UIView>`. It adds method names to a pointer and nothing else. `Image` is given for classes that
/// a process on the phone may not have loaded.
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
  /// Sends a message to the object.
  template <FixedString Selector, class Result = void, class... Arguments>
  Result call(const Arguments&... arguments) const {
    return send<Result>(*this, noted<Selector, false, Result, Arguments...>(), arguments...);
  }

  /// Sends a message to the class.
  template <FixedString Selector, class Result = void, class... Arguments>
  static Result call_class(const Arguments&... arguments) {
    return send<Result>(Object(cls()), noted<Selector, true, Result, Arguments...>(), arguments...);
  }

  /// Whether the object responds to a message that some systems lack.
  template <FixedString Selector>
  bool answers() const {
    return send<BOOL>(*this, "respondsToSelector:"_sel, asked<Selector, false>());
  }

  /// Whether the class responds to a message that some systems lack.
  template <FixedString Selector>
  static bool class_answers() {
    return send<BOOL>(Object(cls()), "respondsToSelector:"_sel, asked<Selector, true>());
  }

 private:
  template <FixedString Selector, bool OfClass>
  static Sel asked() {
#ifdef SONAVUE_MESSAGE_SYMBOLS
    return cached(asked_message<message_name<Name, Selector, OfClass>>, Selector.c_str());
#else
    return selector<Selector>();
#endif
  }

  /// The selector, recorded for the check that lists which messages are sent.
  template <FixedString Selector, bool OfClass, class Result, class... Arguments>
  static Sel noted() {
#ifdef SONAVUE_BINDING_TABLE
    static_cast<void>(
        &NotedBinding<Name, Selector, OfClass, MethodEncoding<Result, Arguments...>::text>::noted);
#endif
#ifdef SONAVUE_MESSAGE_SYMBOLS
    return cached(cached_message<message_text<Name, Selector, OfClass, Result, Arguments...>>,
                  Selector.c_str());
#else
    return selector<Selector>();
#endif
  }
};

}  // namespace objc
