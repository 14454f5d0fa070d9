#pragma once

#include "objc/class_builder.h"
#include "objc/message_text.h"

// The rows of two tables: the methods that the extension adds to the system, and those that it
// replaces.

namespace sonavue {

struct AddedMethod {
  const char* selector;
  objc::Imp body;
  const char* types;
};

template <auto Function>
AddedMethod adds(const char* selector) {
  return {selector, reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call),
          objc::MethodOf<Function>::encoding.c_str()};
}

/// The method that was replaced. The body is null until the replacement, and if the class is
/// missing.
struct Original {
  objc::Sel selector = nullptr;
  objc::Imp body = nullptr;
};

/// The original that the function `Ours` replaces.
template <auto Ours>
inline constinit Original original_of;

struct ReplacedMethod {
  const char* cls;
  objc::Sel selector;
  bool is_class_method;
  objc::Imp ours;
  Original* original;
};

/// The selector of a replaced method. Its symbol also names the class and the types.
template <objc::FixedString Message>
inline constinit objc::Sel replaced_message = nullptr;

template <auto Ours>
struct Replacement;

template <class Result, class Self, class... Arguments, Result (*Ours)(Self, Arguments...)>
struct Replacement<Ours> {
  template <objc::FixedString Class, objc::FixedString Selector, bool IsClassMethod>
  static ReplacedMethod row() {
    constexpr auto& message =
        replaced_message<objc::message_text<Class, Selector, IsClassMethod, Result, Arguments...>>;
    return {Class.c_str(), objc::cached(message, Selector.c_str()), IsClassMethod,
            reinterpret_cast<objc::Imp>(&objc::MethodOf<Ours>::call), &original_of<Ours>};
  }

  static Result call_original(Self self, Arguments... arguments) {
    using Function = objc::AbiType<Result> (*)(objc::Id, objc::Sel, objc::AbiType<Arguments>...);
    const Original& original = original_of<Ours>;
    if (!original.body) return Result();
    const auto function = reinterpret_cast<Function>(original.body);
    if constexpr (std::is_void_v<Result>) {
      function(self.id(), original.selector, objc::to_abi(arguments)...);
    } else {
      return objc::from_abi<Result>(
          function(self.id(), original.selector, objc::to_abi(arguments)...));
    }
  }
};

template <objc::FixedString Class, objc::FixedString Selector, auto Ours>
ReplacedMethod replaces() {
  return Replacement<Ours>::template row<Class, Selector, false>();
}

template <objc::FixedString Class, objc::FixedString Selector, auto Ours>
ReplacedMethod replaces_class_method() {
  return Replacement<Ours>::template row<Class, Selector, true>();
}

/// Calls the platform's method that `Ours` replaces. Returns zero if nothing was replaced because
/// the class is missing.
template <auto Ours>
constexpr auto original = &Replacement<Ours>::call_original;

}  // namespace sonavue
