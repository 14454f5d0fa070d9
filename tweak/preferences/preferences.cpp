#include "tweak/preferences/preferences.h"

#include "platform/Foundation/NSFileManager.h"
#include "platform/Foundation/NSValue.h"
#include "tweak/preferences/preferences_file.h"

namespace sonavue {

objc::Object getPref(PreferenceKey key, objc::Object default_value) {
  if (!NSFileManager::defaultManager().fileExistsAtPath(preferences_path())) return default_value;
  return load_preferences().objectForKey(key.text());
}

BOOL preference_is_on(PreferenceKey key, BOOL default_value) {
  return is_true(getPref(key, NSNumber::numberWithBool(default_value)));
}

BOOL preference_equals(PreferenceKey key, NSString default_value, NSString value) {
  return objc::cast<NSObject>(getPref(key, default_value)).isEqual(value);
}

BOOL preference_in_file(PreferenceKey key) {
  return is_true(load_preferences().objectForKey(key.text()));
}

}  // namespace sonavue
