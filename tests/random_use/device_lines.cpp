#include "tests/random_use/device_lines.h"

#include <fmt/format.h>

#include "tests/random_use/used_phone.h"

namespace random_use {
namespace {

constexpr const char* kFile = "/var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
constexpr const char* kSwitches[] = {"apex", "cover", "square", "cloud", "legibility"};
constexpr const char* kBlurs[] = {
    "adaptive_light",  "light",         "dark",           "ultra_light", "light_low",
    "dark_low",        "ultra_dark",    "passcode",       "colored",     "semi_light",
    "flat_semi_light", "ultra_colored", "light_keyboard", "none"};
constexpr const char* kColours[] = {"black", "white", "gray", "red", "clear", "orange", "mauve"};
constexpr const char* kRings[] = {"volume", "time", "nothing"};
constexpr const char* kKeys[] = {"enable", "apex", "cover",     "square", "cloud",  "legibility",
                                 "blur",   "tint", "font_tint", "play",   "checked"};
constexpr const char* kAnything[] = {"(1, 2)",
                                     "{a = b;}",
                                     "<0a0b>",
                                     "<*I5>",
                                     "<*R-1.5>",
                                     "\\\"\\\"",
                                     "<*D2001-01-01 00:00:00 +0000>"};

std::string entry(const char* key, const char* value) {
  return fmt::format("{} = {}; ", key, value);
}

const char* yes_or_no(bool yes) {
  return yes ? "YES" : "NO";
}

std::string write(const std::string& entries) {
  return fmt::format("print [[@\"{{{}}}\" propertyList] writeToFile:@\"{}\" atomically:YES]",
                     entries, kFile);
}

}  // namespace

std::string good_settings() {
  return write(entry("enable", "YES") + entry("cover", "YES"));
}

std::string random_settings(RandomHand& hand) {
  // Mostly on: in a panel that is switched off nothing can go wrong.
  std::string entries = entry("enable", yes_or_no(!hand.once_in(8)));
  for (const char* key : kSwitches) {
    if (hand.once_in(2)) entries += entry(key, yes_or_no(hand.once_in(2)));
  }
  if (hand.once_in(2)) entries += entry("blur", hand.of(kBlurs));
  if (hand.once_in(2)) entries += entry("tint", hand.of(kColours));
  if (hand.once_in(2)) entries += entry("font_tint", hand.of(kColours));
  if (hand.once_in(2)) entries += entry("play", hand.of(kRings));
  entries += entry("checked", "NO");
  // Of two values for one key, the last one counts.
  if (hand.once_in(4)) entries += entry(hand.of(kKeys), hand.of(kAnything));
  return write(entries);
}

std::string damaged_settings(RandomHand& hand) {
  static constexpr const char* kContents[] = {"", "<?xml version='1.0'?><plist><dict><key>ena",
                                              "(a, list)", "bplist00"};
  if (hand.once_in(4)) {
    return fmt::format("print [[NSFileManager defaultManager] removeItemAtPath:@\"{}\" error:nil]",
                       kFile);
  }
  return fmt::format("print [@\"{}\" writeToFile:@\"{}\" atomically:NO]", hand.of(kContents),
                     kFile);
}

std::string moved_song(RandomHand& hand) {
  // Moving two of the songs is enough.
  const std::string here = fmt::format("{}/{}.flac", kSongs, hand.between(0, 1));
  const std::string away = fmt::format("/var/mobile/Media/{}.away", hand.between(0, 1));
  const bool back = hand.once_in(2);
  return fmt::format(
      "print [[NSFileManager defaultManager] moveItemAtPath:@\"{}\" toPath:@\"{}\" error:nil]",
      back ? away : here, back ? here : away);
}

}  // namespace random_use
