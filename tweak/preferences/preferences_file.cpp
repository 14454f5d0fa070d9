#include "tweak/preferences/preferences_file.h"

#include "platform/Foundation/NSValue.h"

namespace sonavue {

NSString preferences_path() {
  return "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist"_ns;
}

NSDictionary load_preferences() {
  return NSDictionary::dictionaryWithContentsOfFile(preferences_path());
}

BOOL is_true(objc::Object value) {
  const auto number = objc::cast<NSNumber>(value);
  return number.respondsToSelector("boolValue"_sel) && number.boolValue();
}

PreferencesChange::PreferencesChange(NSDictionary loaded)
    : entries_(objc::adopt(NSMutableDictionary::alloc().init())) {
  if (loaded) entries_->addEntriesFromDictionary(loaded);
}

void PreferencesChange::set(objc::Object value, PreferenceKey key) {
  entries_->setObject(value, key.text());
}

void PreferencesChange::set(BOOL value, PreferenceKey key) {
  set(NSNumber::numberWithBool(value), key);
}

void PreferencesChange::write() const {
  entries_->writeToFile(preferences_path(), YES);
}

}  // namespace sonavue
