#include "host/foundation/exception.h"

#include <fmt/format.h>

namespace host::foundation {

void raise(NSString name, const std::string& reason) {
  const auto exception = objc::send<objc::Object>(
      objc::Object(objc_getClass("NSException")), "exceptionWithName:reason:userInfo:"_sel, name,
      NSString::stringWithUTF8String(reason.c_str()), objc::Object());
  objc::send<>(exception, "raise"_sel);
  __builtin_unreachable();
}

std::string plain_description(objc::Object object) {
  if (!object) return "(null)";
  return fmt::format("<{}: {}>", class_getName(objc::class_of(object.id())),
                     static_cast<const void*>(object.id()));
}

}  // namespace host::foundation
