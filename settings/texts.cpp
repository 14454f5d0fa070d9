#include "settings/texts.h"

#include "objc/kind.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSFileManager.h"
#include "platform/Foundation/NSUserDefaults.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

NSString table_path(NSString language) {
  return asset_path<"Languages/">().stringByAppendingString(language).stringByAppendingString(
      ".plist"_ns);
}

bool can_be_read(NSString path) {
  const NSFileManager files = NSFileManager::defaultManager();
  return files.fileExistsAtPath(path) && files.isReadableFileAtPath(path);
}

NSString text_in_table(NSString path, NSString identifier) {
  return objc::kind_of<NSString>(
      NSDictionary::dictionaryWithContentsOfFile(path).objectForKey(identifier));
}

// Not nil, so that it can be shown and used as a key like any text.
NSString null_text() {
  return "(null)"_ns;
}

}  // namespace

NSString lang() {
  const NSArray supported = NSArray::arrayWithObject("en"_ns);
  const auto preferred = objc::kind_of<NSArray>(
      NSUserDefaults::standardUserDefaults().objectForKey("AppleLanguages"_ns));
  const auto first = objc::kind_of<NSString>(preferred.firstObject());
  return supported.containsObject(first) ? first : "en"_ns;
}

NSString Translator(NSString identifier) {
  const NSString path = table_path(lang());
  if (!can_be_read(path)) return null_text();
  const NSString text = text_in_table(path, identifier);
  if (text.length() != 0) return text;
  const NSString english = table_path("en"_ns);
  if (!can_be_read(english)) return text;
  const NSString in_english = text_in_table(english, identifier);
  return in_english.length() != 0 ? in_english : null_text();
}

NSString getNotTranslated(NSString text) {
  const NSString path = table_path(lang());
  if (!can_be_read(path)) return null_text();
  const NSDictionary table = NSDictionary::dictionaryWithContentsOfFile(path);
  const NSEnumerator names = table.keyEnumerator();
  while (const objc::Object name = names.nextObject()) {
    if (objc::kind_of<NSString>(table.objectForKey(name)).isEqualToString(text))
      return objc::cast<NSString>(name);
  }
  return null_text();
}

}  // namespace sonavue
