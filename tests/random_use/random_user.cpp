#include "tests/random_use/random_user.h"

#include <fmt/format.h>

#include <numeric>
#include <sstream>

#include "tests/random_use/device_lines.h"
#include "tests/random_use/patterns.h"

namespace random_use {
namespace {

constexpr int kWidth = 375;
constexpr int kHeight = 667;
constexpr int kFewestActions = 1;
constexpr int kMostActions = 10;
// In seconds: longer than the panel takes from one resting place to the next.
constexpr double kCalmPause = 1.6;

constexpr const char* kListener = "org.plumvane.Sonavue2";
constexpr const char* kModes[] = {"springboard", "lockscreen", "application"};
constexpr const char* kAssigned[] = {"shake", "slide-in-left", "status-bar-hold", "home-hold"};

/// The possible replacements of a placeholder in a pattern.
struct Choices {
  std::string_view word;
  std::vector<const char*> choices;
};

const Choices kChoices[] = {
    {"control",
     {"play", "play", "next", "back", "art", "container1", "music", "musicIcon", "searchBar",
      "grabs", "cover", "container", "main", "[[albums subviews] objectAtIndex:0]"}},
    {"handle", {"musicIcon", "musicIcon", "music", "grabs", "grabs", "art", "container", "play"}},
    {"edge",
     {"187 665 187 300", "187 2 187 400", "2 300 200 300", "373 300 200 300", "300 665 300 640",
      "60 2 60 40", "187 665 30 640"}},
    {"panel", {"drag on musicIcon 187 200 0.3\nadvance <settling>"}},
    {"alert",
     {"print [[[[UIAlertView alloc] initWithTitle:@\"A\" message:@\"b\" delegate:nil "
      "cancelButtonTitle:@\"OK\" otherButtonTitles:nil] autorelease] show]"}},
    {"end", {"ended", "ended", "ended", "cancelled"}},
    {"finger", {"", "", "2 ", "3 "}},
    {"index", {"0", "1", "2"}},
    {"button", {"home", "home", "home-double", "home-touch", "lock", "volume-up", "volume-down"}},
    {"held", {"home", "lock", "volume-up", "volume-down"}},
    {"gesture",
     {"shake", "shake", "status-bar-hold", "home-hold", "lock-hold", "keyboard-chord",
      "slide-in-top"}},
    {"application",
     {"com.apple.Music", "com.apple.Music", "com.apple.Preferences", "com.apple.calculator"}},
    {"text", {"a", "Song", "ÄÖ .*["}},
    {"key",
     {"delete", "return", "escape", "control-a", "tab", "shift-tab", "up", "down", "left",
      "right"}},
};

const char* one_of(std::span<const Pattern> patterns, RandomHand& hand) {
  const auto add = [](int sum, const Pattern& each) { return sum + each.weight; };
  const int total = std::accumulate(patterns.begin(), patterns.end(), 0, add);
  int chosen = hand.between(1, total);
  for (const Pattern& each : patterns) {
    chosen -= each.weight;
    if (chosen <= 0) return each.lines;
  }
  return "";
}

std::string hundredths(RandomHand& hand, int first, int last) {
  return fmt::format("{}", hand.between(first, last) / 100.0);
}

}  // namespace

void RandomUser::prepare() {
  phone_.say(good_settings());
  for (const char* mode : kModes) {
    for (const char* event : kAssigned) {
      phone_.say(
          fmt::format("print [[LAActivator sharedInstance] assignEvent:[LAEvent "
                      "eventWithName:@\"{}\" mode:@\"{}\"] toListenerWithName:@\"{}\"]",
                      event, mode, kListener));
    }
  }
  phone_.wait(1);
}

void RandomUser::burst() {
  hasty_ = !hand_.once_in(4);
  perform(one_of(beginnings(), hand_));
  for (int left = hand_.between(kFewestActions, kMostActions); left > 0; --left) {
    ++actions_;
    perform(one_of(random_use::actions(), hand_));
    pause();
  }
}

void RandomUser::pause() {
  phone_.wait(hasty_ ? hand_.between(1, 60) / 100.0 : kCalmPause);
}

void RandomUser::perform(const char* pattern) {
  std::istringstream lines(filled(pattern));
  for (std::string line; std::getline(lines, line);)
    phone_.say(line);
}

std::string RandomUser::filled(std::string_view pattern) {
  std::string made;
  for (auto start = pattern.find('<'); start != pattern.npos; start = pattern.find('<')) {
    const auto end = pattern.find('>', start);
    made += pattern.substr(0, start);
    made += something(pattern.substr(start + 1, end - start - 1));
    pattern.remove_prefix(end + 1);
  }
  return made += pattern;
}

std::string RandomUser::something(std::string_view word) {
  for (const Choices& known : kChoices) {
    if (known.word == word) return filled(hand_.of(std::span(known.choices)));
  }
  if (word == "interruption") return filled(one_of(interruptions(), hand_));
  if (word == "point") return point();
  if (word == "time") return hundredths(hand_, 2, 60);
  if (word == "short") return hundredths(hand_, 1, 40);
  if (word == "pause") return hundredths(hand_, 1, 120);
  if (word == "settling") return hundredths(hand_, 1, 200);
  if (word == "settings") return random_settings(hand_);
  if (word == "damage") return damaged_settings(hand_);
  return moved_song(hand_);
}

std::string RandomUser::point() {
  return fmt::format("{} {}", hand_.between(0, kWidth - 1), hand_.between(0, kHeight - 1));
}

}  // namespace random_use
