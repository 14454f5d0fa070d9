#pragma once

#include "objc/class_builder.h"

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

/// The implementation that a replacement took the place of. Where the class was missing, nothing
/// was replaced and calling it gives zero.
template <class Signature>
class Replaced;

template <class Result, class Self, class... Arguments>
class Replaced<Result(Self, Arguments...)> {
 public:
  Result operator()(Self self, objc::Sel selector, Arguments... arguments) const {
    using Function = objc::AbiType<Result> (*)(objc::Id, objc::Sel, objc::AbiType<Arguments>...);
    if (!body_) return Result();
    const auto function = reinterpret_cast<Function>(body_);
    if constexpr (std::is_void_v<Result>) {
      function(self.id(), selector, objc::to_abi(arguments)...);
    } else {
      return objc::from_abi<Result>(function(self.id(), selector, objc::to_abi(arguments)...));
    }
  }

  objc::Imp* slot() { return &body_; }

 private:
  objc::Imp body_ = nullptr;
};

/// Replaces the method of `cls` with `Function` and keeps the one before in `original`.
template <auto Function, class Signature>
void replace(objc::Class cls, const char* selector, Replaced<Signature>& original) {
  MSHookMessageEx(cls, sel_registerName(selector),
                  reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call), original.slot());
}

}  // namespace sonavue
