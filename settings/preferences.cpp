#include "settings/preferences.h"

#include "objc/kind.h"
#include "platform/Foundation/NSValue.h"
#include "tweak/preferences/preferences_file.h"

namespace sonavue {

objc::Object stored_value(PreferenceKey key) {
  const objc::Object value = load_preferences().objectForKey(key.text());
  return objc::kind_of<NSString>(value) || objc::kind_of<NSNumber>(value) ? value : nil;
}

void store(objc::Object value, PreferenceKey key) {
  PreferencesChange change(load_preferences());
  change.set(value, key);
  change.set(NO, preference::checked());
  change.write();
}

void store_unannounced(objc::Object value, PreferenceKey key) {
  PreferencesChange change(load_preferences());
  change.set(value, key);
  change.write();
}

}  // namespace sonavue
