#pragma once

#include "objc/send.h"

namespace objc {

/// A message that one receiver gets again and again: the method that answers it is looked up once.
/// For as long as nobody replaces that method.
template <class Result, class... Arguments>
class RepeatedSend {
 public:
  /// The receiver is an object, not nil.
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
