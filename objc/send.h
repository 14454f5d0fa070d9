#pragma once

#include "objc/encoding.h"
#include "objc/object.h"
#include "objc/selector.h"

namespace objc {

#ifdef SONAVUE_CHECKS
/// Prints both signatures and aborts if the method that would be called has a different encoding.
void check_call(Id receiver, Sel selector, const char* encoding);
void check_super_call(SuperReceiver target, Sel selector, const char* encoding);
#endif

/// Sends `selector` to `receiver`. A message to nil returns a zero value.
template <class Result = void, class... Arguments>
inline Result send(Object receiver, Sel selector, const Arguments&... arguments) {
  using Function = AbiType<Result> (*)(Id, Sel, AbiType<Arguments>...);
  if (!receiver) {
    if constexpr (std::is_void_v<Result>) {
      return;
    } else {
      return Result{};
    }
  }
#ifdef SONAVUE_CHECKS
  check_call(receiver.id(), selector, MethodEncoding<Result, Arguments...>::text.c_str());
#endif
  const auto function = reinterpret_cast<Function>(message_function(receiver.id(), selector));
  if constexpr (std::is_void_v<Result>) {
    function(receiver.id(), selector, to_abi(arguments)...);
  } else {
    return from_abi<Result>(function(receiver.id(), selector, to_abi(arguments)...));
  }
}

/// Sends `selector` to `receiver`, starting at the superclass of `cls`.
template <class Result = void, class... Arguments>
inline Result send_super(Object receiver, Class cls, Sel selector, const Arguments&... arguments) {
  using Function = AbiType<Result> (*)(Id, Sel, AbiType<Arguments>...);
  const SuperReceiver target{receiver.id(), class_getSuperclass(cls)};
#ifdef SONAVUE_CHECKS
  check_super_call(target, selector, MethodEncoding<Result, Arguments...>::text.c_str());
#endif
  if constexpr (std::is_void_v<Result>) {
    call_super<Function>(target, selector, to_abi(arguments)...);
  } else {
    return from_abi<Result>(call_super<Function>(target, selector, to_abi(arguments)...));
  }
}

}  // namespace objc
