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
/// The selector of one binding: the symbol says what is sent, to which class, with which types.
template <FixedString Message>
inline constinit Sel cached_message = nullptr;

/// The selector of a message that is asked for before it is sent.
template <FixedString Message>
inline constinit Sel asked_message = nullptr;
#endif

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
    return send<Result>(*this, noted<Selector, false, Result, Arguments...>(), arguments...);
  }

  /// Sends a class method of this class.
  template <FixedString Selector, class Result = void, class... Arguments>
  static Result call_class(const Arguments&... arguments) {
    return send<Result>(Object(cls()), noted<Selector, true, Result, Arguments...>(), arguments...);
  }

  /// Whether objects of this class answer a message that not every system has.
  template <FixedString Selector>
  bool answers() const {
    return send<BOOL>(*this, "respondsToSelector:"_sel, asked<Selector, false>());
  }

  /// The same of a class method.
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

  /// The selector, kept where whoever asks what is sent finds it.
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
