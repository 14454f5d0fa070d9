#include "host/preferences/stored_value.h"

#include <string>

#include "host/foundation/notifications.h"
#include "host/foundation/property_list_file.h"

namespace host::preferences {
namespace {

constexpr const char* kFolder = "/var/mobile/Library/Preferences/";

NSString text_property(PSSpecifier specifier, NSString key) {
  const auto value = objc::cast<NSObject>(specifier.propertyForKey(key));
  return value && value.isKindOfClass(NSString::cls()) ? objc::cast<NSString>(value) : NSString();
}

foundation::PropertyListFile file_of(NSString domain) {
  return foundation::PropertyListFile(std::string(kFolder) + domain.UTF8String() + ".plist");
}

}  // namespace

objc::Object stored_value(PSSpecifier specifier) {
  if (!specifier) return nil;
  const NSString domain = text_property(specifier, "defaults"_ns);
  const NSString key = text_property(specifier, "key"_ns);
  const objc::Object found =
      domain && key ? file_of(domain).read().objectForKey(key) : objc::Object();
  return found ? found : specifier.propertyForKey("default"_ns);
}

void store_value(objc::Object value, PSSpecifier specifier) {
  if (!specifier) return;
  const NSString domain = text_property(specifier, "defaults"_ns);
  const NSString key = text_property(specifier, "key"_ns);
  if (!domain || !key) return;
  auto file = file_of(domain);
  const auto list = NSMutableDictionary::dictionary();
  if (const NSDictionary before = file.read()) list.addEntriesFromDictionary(before);
  if (value) {
    list.setObject(value, key);
  } else {
    list.removeObjectForKey(key);
  }
  file.write(list);
  if (const NSString name = text_property(specifier, "PostNotification"_ns))
    foundation::post_to_processes(name.UTF8String());
}

}  // namespace host::preferences
