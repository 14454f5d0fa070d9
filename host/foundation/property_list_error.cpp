#include "host/foundation/property_list_error.h"

#include "platform/Foundation/NSDictionary.h"

namespace host::foundation {
namespace {

constexpr NSInteger kDamagedList = 3840;

}  // namespace

objc::Object property_list_error(const std::string& reason) {
  const auto information = NSDictionary::dictionaryWithObject(
      NSString::stringWithUTF8String(reason.c_str()), "NSLocalizedDescription"_ns);
  return objc::send<objc::Object>(objc::Object(objc_getClass("NSError")),
                                  "errorWithDomain:code:userInfo:"_sel, "NSCocoaErrorDomain"_ns,
                                  kDamagedList, information);
}

}  // namespace host::foundation
