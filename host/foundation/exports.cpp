#include "host/foundation/exports.h"

#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSValue.h"

namespace host::foundation {
namespace {

// Without this default property lists are written in an old text form.
void write_property_lists_as_xml() {
  const auto defaults = objc::send<objc::Object>(objc::Object(objc_getClass("NSUserDefaults")),
                                                 "standardUserDefaults"_sel);
  const auto compatible = objc::send<objc::Object>(
      objc::Object(objc_getClass("NSDictionary")), "dictionaryWithObject:forKey:"_sel,
      NSNumber::numberWithBool(YES), "GSMacOSXCompatible"_ns);
  objc::send<>(defaults, "registerDefaults:"_sel, compatible);
}

}  // namespace

void export_foundation() {
  objc::AutoreleasePool pool;
  export_device_paths();
  export_timers();
  write_property_lists_as_xml();
}

}  // namespace host::foundation
