#include "settings/preferences.h"

#include "objc/kind.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"

namespace sonavue {
namespace {

NSString preferences_path() {
  return "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist"_ns;
}

NSDictionary load() {
  return NSDictionary::dictionaryWithContentsOfFile(preferences_path());
}

/// All that is in the file, to be changed; empty when it cannot be read. +1.
NSMutableDictionary changeable() {
  const NSMutableDictionary changed = NSMutableDictionary::alloc().init();
  if (const NSDictionary present = load()) changed.addEntriesFromDictionary(present);
  return changed;
}

}  // namespace

objc::Object stored_value(NSString key) {
  const objc::Object value = load().objectForKey(key);
  return objc::kind_of<NSString>(value) || objc::kind_of<NSNumber>(value) ? value : nil;
}

void store(objc::Object value, NSString key) {
  const NSMutableDictionary changed = changeable();
  changed.setObject(value, key);
  changed.setObject(NSNumber::numberWithBool(NO), "checked"_ns);
  changed.writeToFile(preferences_path(), YES);
  changed.release();
}

void store_unannounced(objc::Object value, NSString key) {
  const NSMutableDictionary changed = changeable();
  changed.setObject(value, key);
  changed.writeToFile(preferences_path(), YES);
  changed.release();
}

BOOL is_true(objc::Object value) {
  const auto number = objc::cast<NSNumber>(value);
  return number.respondsToSelector("boolValue"_sel) && number.boolValue();
}

}  // namespace sonavue
