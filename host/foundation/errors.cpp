#include "host/foundation/errors.h"

#include "platform/Foundation/NSDictionary.h"

namespace host::foundation {
namespace {

constexpr NSInteger kDamagedList = 3840;

objc::Object make_error(NSString domain, NSInteger code, NSDictionary information) {
  return objc::send<objc::Object>(objc::Object(objc_getClass("NSError")),
                                  "errorWithDomain:code:userInfo:"_sel, domain, code, information);
}

}  // namespace

objc::Object property_list_error(const std::string& reason) {
  return make_error(
      "NSCocoaErrorDomain"_ns, kDamagedList,
      NSDictionary::dictionaryWithObject(NSString::stringWithUTF8String(reason.c_str()),
                                         "NSLocalizedDescription"_ns));
}

objc::Object system_error(const std::error_code& error) {
  return make_error("NSPOSIXErrorDomain"_ns, error.value(), nil);
}

}  // namespace host::foundation
