#pragma once

#include <functional>

#include "host/runtime/hooking.h"
#include "objc/class_builder.h"

namespace host::test {

inline int heard_messages_under_way = 0;

/// Records the receivers of a message without a result, then forwards it. Messages that are sent
/// while any such spy forwards one are not recorded. Only one spy may exist at a time for each kind
/// of receiver and selector. After its destruction the replaced method only forwards.
template <class Receiver, objc::FixedString Selector, class... Arguments>
class ReceiverSpy {
 public:
  using Listener = std::function<void(Receiver, Arguments...)>;

  explicit ReceiverSpy(Listener listener, objc::Class cls = Receiver::cls())
      : listener_(std::move(listener)) {
    listening = this;
    if (!before)
      MSHookMessageEx(cls, sel_registerName(Selector.c_str()),
                      reinterpret_cast<objc::Imp>(&objc::MethodOf<&heard>::call), &before);
    EXPECT_TRUE(before) << Selector.c_str() << " does not exist";
  }
  ~ReceiverSpy() { listening = nullptr; }
  ReceiverSpy(const ReceiverSpy&) = delete;
  ReceiverSpy& operator=(const ReceiverSpy&) = delete;

 private:
  static void heard(Receiver self, Arguments... arguments) {
    if (listening && heard_messages_under_way == 0) listening->listener_(self, arguments...);
    ++heard_messages_under_way;
    using Function = void (*)(objc::Id, objc::Sel, objc::AbiType<Arguments>...);
    reinterpret_cast<Function>(before)(self.id(), sel_registerName(Selector.c_str()),
                                       objc::to_abi(arguments)...);
    --heard_messages_under_way;
  }

  static inline objc::Imp before = nullptr;
  static inline ReceiverSpy* listening = nullptr;

  Listener listener_;
};

}  // namespace host::test
