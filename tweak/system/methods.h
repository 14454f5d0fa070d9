#pragma once

#include "objc/class_builder.h"
#include "objc/message_text.h"

extern "C" void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                                objc::Imp* original);

namespace sonavue {

/// One row of a table of methods: a selector and the function that is to answer it.
struct MethodRow {
  const char* selector;
  objc::Imp body;
  const char* types;
};

template <auto Function>
MethodRow row(const char* selector) {
  return {selector, reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call),
          objc::MethodOf<Function>::encoding.c_str()};
}

/// Where the implementation is kept that one of ours takes the place of; its symbol says which.
template <objc::FixedString Method>
inline constinit objc::Imp replaced_body = nullptr;

/// A method of the platform that one of ours takes the place of, an object's or a class's.
template <objc::FixedString Class, objc::FixedString Selector, class Signature,
          bool OfClass = false>
class Replaced;

template <objc::FixedString Class, objc::FixedString Selector, bool OfClass, class Result,
          class Self, class... Arguments>
class Replaced<Class, Selector, Result(Self, Arguments...), OfClass> {
 public:
  /// Does what the platform does. Where the class is missing nothing was replaced, and this gives
  /// zero.
  static Result original(Self self, Arguments... arguments) {
    using Function = objc::AbiType<Result> (*)(objc::Id, objc::Sel, objc::AbiType<Arguments>...);
    if (!body) return Result();
    const auto function = reinterpret_cast<Function>(body);
    const objc::Sel selector = objc::selector<Selector>();
    if constexpr (std::is_void_v<Result>) {
      function(self.id(), selector, objc::to_abi(arguments)...);
    } else {
      return objc::from_abi<Result>(function(self.id(), selector, objc::to_abi(arguments)...));
    }
  }

  template <auto Function>
  static void replace_with() {
    static_assert(std::is_same_v<decltype(Function), Result (*)(Self, Arguments...)>);
    objc::Class cls = objc_getClass(Class.c_str());
    if (cls && OfClass) cls = objc::class_of(reinterpret_cast<objc::Id>(cls));
    MSHookMessageEx(cls, objc::selector<Selector>(),
                    reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call), &body);
  }

 private:
  static constexpr objc::Imp& body =
      replaced_body<objc::message_text<Class, Selector, OfClass, Result, Arguments...>>;
};

}  // namespace sonavue
