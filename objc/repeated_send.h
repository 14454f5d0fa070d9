#pragma once

#include "objc/send.h"

namespace objc {

/// Sends one message to one receiver repeatedly and looks the method up only once. Use it only
/// where the method cannot be replaced in between.
template <class Result, class... Arguments>
class RepeatedSend {
 public:
  /// The receiver is not nil.
  RepeatedSend(Object receiver, Sel selector) : receiver_(receiver), selector_(selector) {
#ifdef SONAVUE_CHECKS
    check_call(receiver.id(), selector, MethodEncoding<Result, Arguments...>::text.c_str());
#endif
    function_ = reinterpret_cast<Function>(message_function(receiver.id(), selector));
  }

  Result operator()(const Arguments&... arguments) const {
    return from_abi<Result>(function_(receiver_.id(), selector_, to_abi(arguments)...));
  }

 private:
  using Function = AbiType<Result> (*)(Id, Sel, AbiType<Arguments>...);

  Object receiver_;
  Sel selector_;
  Function function_;
};

}  // namespace objc
