#include "host/media_player/music_choices.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "host/foundation/property_list_file.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSValue.h"

namespace host::media_player {
namespace {

constexpr const char* kFile = "/var/mobile/Library/Preferences/com.apple.mobileipod.plist";

// In the order of the enumeration.
using Names = std::array<const char*, 3>;
constexpr Names kReplayGains{"off", "track", "album"};
constexpr Names kRepeats{"none", "one", "all"};

NSString replay_gain_key() {
  return "ReplayGain"_ns;
}
NSString repeat_key() {
  return "Repeat"_ns;
}
NSString shuffles_key() {
  return "Shuffle"_ns;
}
NSString announces_songs_key() {
  return "AnnouncesSongs"_ns;
}

template <class Choice>
void read(Choice& choice, const Names& names, NSDictionary kept, NSString key) {
  const auto value = objc::cast<NSObject>(kept.objectForKey(key));
  if (!value || !value.isKindOfClass(NSString::cls())) return;
  const auto found =
      std::ranges::find(names, std::string_view(objc::cast<NSString>(value).UTF8String()));
  if (found != names.end()) choice = static_cast<Choice>(found - names.begin());
}

void read(bool& choice, NSDictionary kept, NSString key) {
  const auto value = objc::cast<NSObject>(kept.objectForKey(key));
  if (value && value.isKindOfClass(NSNumber::cls()))
    choice = objc::cast<NSNumber>(value).boolValue();
}

template <class Choice>
NSString name_of(Choice choice, const Names& names) {
  return NSString::stringWithUTF8String(names[static_cast<std::size_t>(choice)]);
}

}  // namespace

MusicChoices read_music_choices() {
  MusicChoices choices;
  const NSDictionary kept = foundation::PropertyListFile(kFile).read();
  read(choices.replay_gain, kReplayGains, kept, replay_gain_key());
  read(choices.repeat, kRepeats, kept, repeat_key());
  read(choices.shuffles, kept, shuffles_key());
  read(choices.announces_songs, kept, announces_songs_key());
  return choices;
}

bool write_music_choices(const MusicChoices& choices) {
  foundation::PropertyListFile file(kFile);
  const auto kept = NSMutableDictionary::dictionary();
  if (const NSDictionary before = file.read()) kept.addEntriesFromDictionary(before);
  kept.setObject(name_of(choices.replay_gain, kReplayGains), replay_gain_key());
  kept.setObject(name_of(choices.repeat, kRepeats), repeat_key());
  kept.setObject(NSNumber::numberWithBool(choices.shuffles), shuffles_key());
  kept.setObject(NSNumber::numberWithBool(choices.announces_songs), announces_songs_key());
  return file.write(kept);
}

}  // namespace host::media_player
