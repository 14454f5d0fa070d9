#include "tweak/preferences/get_pref.h"

#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSFileManager.h"

namespace sonavue {
namespace {

NSString preferences_path() {
  return "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist"_ns;
}

NSDictionary load_preferences() {
  return NSDictionary::dictionaryWithContentsOfFile(preferences_path());
}

struct NamedColor {
  NSString name;
  UIColor (*make)();
};

// Somebody may have written the file by hand: what is no switch is off, what is no text names
// nothing.
BOOL is_on(objc::Object value) {
  const auto number = objc::cast<NSNumber>(value);
  return number.respondsToSelector("boolValue"_sel) && number.boolValue();
}

// Dark enough to be read on a light blur; not a transparent colour.
UIColor translucent_black() {
  return UIColor::colorWithWhite(0, 0.45);
}

}  // namespace

objc::Object getPref(NSString key, objc::Object default_value) {
  if (!NSFileManager::defaultManager().fileExistsAtPath(preferences_path())) return default_value;
  return load_preferences().objectForKey(key);
}

BOOL preference_is_on(NSString key, BOOL default_value) {
  return is_on(getPref(key, NSNumber::numberWithBool(default_value)));
}

BOOL preference_equals(NSString key, NSString default_value, NSString value) {
  return objc::cast<NSObject>(getPref(key, default_value)).isEqual(value);
}

BOOL preference_in_file(NSString key) {
  return is_on(load_preferences().objectForKey(key));
}

UIColor color(NSString key) {
  const auto wanted = objc::cast<NSObject>(getPref(key, "clear"_ns));
  const NamedColor colors[] = {
      {"black"_ns, &UIColor::blackColor},   {"white"_ns, &UIColor::whiteColor},
      {"gray"_ns, &UIColor::grayColor},     {"red"_ns, &UIColor::redColor},
      {"green"_ns, &UIColor::greenColor},   {"blue"_ns, &UIColor::blueColor},
      {"cyan"_ns, &UIColor::cyanColor},     {"magenta"_ns, &UIColor::magentaColor},
      {"orange"_ns, &UIColor::orangeColor}, {"purple"_ns, &UIColor::purpleColor},
      {"brown"_ns, &UIColor::brownColor},   {"clear"_ns, &translucent_black},
  };
  for (const NamedColor& candidate : colors) {
    if (wanted.isEqual(candidate.name)) return candidate.make();
  }
  return UIColor::blackColor();
}

void changePreferences(SpringBoard self) {
  const NSDictionary loaded = load_preferences();
  if (is_on(loaded.objectForKey("checked"_ns))) return;
  const NSMutableDictionary changed = NSMutableDictionary::alloc().init();
  if (loaded) changed.addEntriesFromDictionary(loaded);
  changed.setObject(NSNumber::numberWithBool(YES), "checked"_ns);
  changed.writeToFile(preferences_path(), YES);
  changed.release();
  objc::send<>(self, "changesPrefs"_sel);
}

}  // namespace sonavue
