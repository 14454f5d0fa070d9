#pragma once

#include "objc/class_builder.h"
#include "objc/message_text.h"

/// Replaces a method; null if the class is missing. Part of every phone that loads extensions.
extern "C" void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                                objc::Imp* original);

namespace objc {

/// The method that was replaced. The body is null until the replacement, and if the class is
/// missing.
struct Original {
  Sel selector = nullptr;
  Imp body = nullptr;
};

/// The original that the function `Ours` replaces.
template <auto Ours>
inline constinit Original original_of;

/// The selector of a replaced method. Its symbol also names the class and the types.
template <FixedString Message>
inline constinit Sel replaced_message = nullptr;

template <auto Ours>
struct Replacement;

template <class Result, class Self, class... Arguments, Result (*Ours)(Self, Arguments...)>
struct Replacement<Ours> {
  template <FixedString ClassName, FixedString Selector, bool OfClass>
  static void install() {
    constexpr auto& message =
        replaced_message<message_text<ClassName, Selector, OfClass, Result, Arguments...>>;
    Class cls = objc_getClass(ClassName.c_str());
    if (cls && OfClass) cls = class_of(reinterpret_cast<Id>(cls));
    Original& original = original_of<Ours>;
    original.selector = cached(message, Selector.c_str());
    MSHookMessageEx(cls, original.selector, reinterpret_cast<Imp>(&MethodOf<Ours>::call),
                    &original.body);
  }

  static Result call_original(Self self, Arguments... arguments) {
    using Function = AbiType<Result> (*)(Id, Sel, AbiType<Arguments>...);
    const Original& original = original_of<Ours>;
    if (!original.body) return Result();
    const auto function = reinterpret_cast<Function>(original.body);
    if constexpr (std::is_void_v<Result>) {
      function(self.id(), original.selector, to_abi(arguments)...);
    } else {
      return from_abi<Result>(function(self.id(), original.selector, to_abi(arguments)...));
    }
  }
};

/// Replaces a method by the function `Ours`, whose first parameter is the receiver. Does nothing if
/// the class is missing.
template <FixedString ClassName, FixedString Selector, auto Ours>
void hook() {
  Replacement<Ours>::template install<ClassName, Selector, false>();
}

template <FixedString ClassName, FixedString Selector, auto Ours>
void hook_class_method() {
  Replacement<Ours>::template install<ClassName, Selector, true>();
}

/// Calls the method that `Ours` replaces. Returns zero if nothing was replaced because the class is
/// missing.
template <auto Ours>
constexpr auto original = &Replacement<Ours>::call_original;

}  // namespace objc
