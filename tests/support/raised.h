#pragma once

#include <optional>
#include <string>

#include "objc/class_builder.h"
#include "platform/Foundation/NSString.h"

namespace host::test {

/// Returns the reason of the platform exception that `call` raises; nothing when it raises none.
/// C++ sees no more of a foreign exception than that it exists, so this intercepts `raise` itself.
template <class Call>
std::optional<std::string> raised_by(Call call) {
  static objc::Imp original = nullptr;
  static std::string reason;
  const objc::Class cls = objc_getClass("NSException");
  const objc::Sel raise = sel_registerName("raise");
  using Raise = void (*)(objc::Id, objc::Sel);
  const Raise listen = [](objc::Id self, objc::Sel selector) {
    reason = objc::send<NSString>(objc::Object(self), sel_registerName("reason")).UTF8String();
    reinterpret_cast<Raise>(original)(self, selector);
  };
  const objc::Method method = class_getInstanceMethod(cls, raise);
  original = method_setImplementation(method, reinterpret_cast<objc::Imp>(listen));
  bool has_raised = false;
  try {
    call();
  } catch (...) {
    has_raised = true;
  }
  method_setImplementation(method, original);
  return has_raised ? std::optional(reason) : std::nullopt;
}

}  // namespace host::test
