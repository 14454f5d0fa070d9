#include "tests/random_use/settings_file.h"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

#include "tests/support/media_fixtures.h"

namespace random_use {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSwitches[] = {"enable", "apex", "cover", "square", "cloud", "legibility"};
constexpr const char* kBlurs[] = {
    "adaptive_light",  "light",         "dark",           "ultra_light", "light_low",
    "dark_low",        "ultra_dark",    "passcode",       "colored",     "semi_light",
    "flat_semi_light", "ultra_colored", "light_keyboard", "none"};
constexpr const char* kColours[] = {"black", "white", "gray", "red", "clear", "orange", "mauve"};
constexpr const char* kRings[] = {"volume", "time", "nothing"};

fs::path settings_of(const fs::path& root) {
  return root / "var/mobile/Library/Preferences/org.plumvane.SonavueSettings.plist";
}

std::string text_entry(const char* key, const char* value) {
  return fmt::format("<key>{}</key><string>{}</string>", key, value);
}

std::string switch_entry(const char* key, bool on) {
  return fmt::format("<key>{}</key><{}/>", key, on ? "true" : "false");
}

void write(const fs::path& root, const std::string& entries) {
  const fs::path file = settings_of(root);
  fs::create_directories(file.parent_path());
  const fs::path beside = file.string() + ".new";
  media_tests::write_bytes(beside, fmt::format("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                               "<plist version=\"1.0\"><dict>{}</dict></plist>",
                                               entries));
  fs::rename(beside, file);
}

}  // namespace

void write_first_settings(const fs::path& root) {
  write(root, switch_entry("enable", true) + switch_entry("cover", true));
}

void write_random_settings(const fs::path& root, RandomHand& hand) {
  // Mostly on: a panel that is switched off has nothing to go wrong.
  std::string entries = switch_entry("enable", !hand.once_in(8));
  for (const char* key : std::span(kSwitches).subspan(1)) {
    if (hand.once_in(2)) entries += switch_entry(key, hand.once_in(2));
  }
  if (hand.once_in(2)) entries += text_entry("blur", hand.of(kBlurs));
  if (hand.once_in(2)) entries += text_entry("tint", hand.of(kColours));
  if (hand.once_in(2)) entries += text_entry("font_tint", hand.of(kColours));
  if (hand.once_in(2)) entries += text_entry("play", hand.of(kRings));
  if (hand.once_in(4)) entries += switch_entry("play", true);
  entries += switch_entry("checked", false);
  write(root, entries);
}

void damage_settings_file(const fs::path& root, RandomHand& hand) {
  const fs::path file = settings_of(root);
  std::error_code error;
  switch (hand.below(4)) {
    case 0:
      fs::remove(file, error);
      break;
    case 1:
      media_tests::write_bytes(file, "");
      break;
    case 2:
      media_tests::write_bytes(file, "<?xml version=\"1.0\"?><plist><dict><key>ena");
      break;
    default:
      media_tests::write_bytes(file, "(a, list)");
      break;
  }
}

void move_random_song(const fs::path& music, RandomHand& hand) {
  const fs::path away = music.string() + "-away";
  fs::create_directories(away);
  const bool back = hand.once_in(2);
  std::vector<fs::path> songs;
  for (const auto& entry : fs::directory_iterator(back ? away : music))
    songs.push_back(entry.path());
  if (songs.empty()) return;
  // Folders list their files in any order.
  std::sort(songs.begin(), songs.end());
  const fs::path& song = songs[hand.below(songs.size())];
  fs::rename(song, (back ? music : away) / song.filename());
}

}  // namespace random_use
