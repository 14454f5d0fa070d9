#include "host/springboard/common/wallpaper.h"

#include <string_view>

#include "host/foundation/property_list_file.h"
#include "host/springboard/common/configuration.h"
#include "host/springboard/common/pictures.h"
#include "host/springboard/model/strings.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSFileManager.h"

namespace host::springboard {
namespace {

constexpr std::string_view kPrefix = "wallpaper-";
constexpr std::string_view kSuffix = ".png";

constexpr const char* kPreferences = "/var/mobile/Library/Preferences/com.apple.springboard.plist";

NSString key() {
  return "Wallpaper"_ns;
}

}  // namespace

NSArray wallpaper_names() {
  const auto names = NSMutableArray::array();
  const NSArray files = NSFileManager::defaultManager().contentsOfDirectoryAtPath(
      to_ns(configuration().pictures_folder), nullptr);
  if (!files) return names;
  for (const NSString file : files.of<NSString>()) {
    const std::string_view text = file.UTF8String();
    if (!text.starts_with(kPrefix) || !text.ends_with(kSuffix)) continue;
    names.addObject(to_ns(std::string(text.substr(0, text.size() - kSuffix.size()))));
  }
  names.sortUsingSelector("compare:"_sel);
  return names;
}

NSString chosen_wallpaper() {
  const auto chosen = objc::cast<NSObject>(
      NSDictionary::dictionaryWithContentsOfFile(to_ns(kPreferences)).objectForKey(key()));
  const bool is_name = chosen && chosen.isKindOfClass(NSString::cls());
  if (is_name && picture(objc::cast<NSString>(chosen))) return objc::cast<NSString>(chosen);
  return to_ns(configuration().wallpaper);
}

void choose_wallpaper(NSString name) {
  foundation::PropertyListFile file(kPreferences);
  const auto preferences = NSMutableDictionary::dictionary();
  if (const NSDictionary kept = file.read()) preferences.addEntriesFromDictionary(kept);
  preferences.setObject(name, key());
  file.write(preferences);
}

}  // namespace host::springboard
