#pragma once

#include <tuple>
#include <vector>

#include "host/runtime/hooking.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Foundation/NSString.h"

namespace host::test {

template <objc::FixedString Selector, class Signature>
class MethodSpy;

/// Records the calls of a method and forwards them. Only one spy may exist at a time for each
/// selector and signature. After its destruction the replaced method only forwards.
template <objc::FixedString Selector, class Result, class Self, class... Arguments>
class MethodSpy<Selector, Result(Self, Arguments...)> {
 public:
  using Call = std::tuple<Arguments...>;

  /// Also appends the selector to `order`, to show the order of calls across several spies.
  explicit MethodSpy(objc::Class cls, std::vector<std::string>* order = nullptr) : order_(order) {
    listening = this;
    if (!before)
      MSHookMessageEx(cls, sel_registerName(Selector.c_str()),
                      reinterpret_cast<objc::Imp>(&objc::MethodOf<&heard>::call), &before);
    EXPECT_TRUE(before) << Selector.c_str() << " does not exist";
  }
  ~MethodSpy() { listening = nullptr; }
  MethodSpy(const MethodSpy&) = delete;
  MethodSpy& operator=(const MethodSpy&) = delete;

  int count() const { return static_cast<int>(calls_.size()); }
  const Call& last() const { return calls_.back(); }
  const std::vector<Call>& calls() const { return calls_; }

 private:
  static Result heard(Self self, Arguments... arguments) {
    if (listening) {
      listening->calls_.emplace_back(arguments...);
      (listening->keep(arguments), ...);
      if (listening->order_) listening->order_->push_back(Selector.c_str());
    }
    using Function = objc::AbiType<Result> (*)(objc::Id, objc::Sel, objc::AbiType<Arguments>...);
    const auto function = reinterpret_cast<Function>(before);
    const auto selector = sel_registerName(Selector.c_str());
    if constexpr (std::is_void_v<Result>) {
      function(self.id(), selector, objc::to_abi(arguments)...);
    } else {
      return objc::from_abi<Result>(function(self.id(), selector, objc::to_abi(arguments)...));
    }
  }

  // Retains strings: they often exist only for the call, and tests look at them later.
  template <class T>
  void keep([[maybe_unused]] T argument) {
    if constexpr (std::is_base_of_v<NSString, T>)
      kept_.push_back(objc::Ref<objc::Object>::retain(argument));
  }

  static inline objc::Imp before = nullptr;
  static inline MethodSpy* listening = nullptr;

  std::vector<Call> calls_;
  std::vector<objc::Ref<objc::Object>> kept_;
  std::vector<std::string>* order_;
};

}  // namespace host::test
