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
constexpr std::array<const char*, 3> kReplayGains{"off", "track", "album"};

NSString replay_gain_key() {
  return "ReplayGain"_ns;
}
NSString announces_songs_key() {
  return "AnnouncesSongs"_ns;
}

}  // namespace

MusicChoices read_music_choices() {
  MusicChoices choices;
  const NSDictionary kept = foundation::PropertyListFile(kFile).read();
  const auto gain = objc::cast<NSObject>(kept.objectForKey(replay_gain_key()));
  if (gain && gain.isKindOfClass(NSString::cls())) {
    const std::string_view name = objc::cast<NSString>(gain).UTF8String();
    const auto found = std::ranges::find(kReplayGains, name);
    if (found != kReplayGains.end())
      choices.replay_gain = static_cast<media::ReplayGain>(found - kReplayGains.begin());
  }
  const auto announces = objc::cast<NSObject>(kept.objectForKey(announces_songs_key()));
  if (announces && announces.isKindOfClass(NSNumber::cls()))
    choices.announces_songs = objc::cast<NSNumber>(announces).boolValue();
  return choices;
}

bool write_music_choices(const MusicChoices& choices) {
  foundation::PropertyListFile file(kFile);
  const auto kept = NSMutableDictionary::dictionary();
  if (const NSDictionary before = file.read()) kept.addEntriesFromDictionary(before);
  const char* gain = kReplayGains[static_cast<std::size_t>(choices.replay_gain)];
  kept.setObject(NSString::stringWithUTF8String(gain), replay_gain_key());
  kept.setObject(NSNumber::numberWithBool(choices.announces_songs), announces_songs_key());
  return file.write(kept);
}

}  // namespace host::media_player
