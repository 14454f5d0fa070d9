#include "tests/random_use/random_user.h"

#include <fmt/format.h>

#include "tests/random_use/settings_file.h"

namespace random_use {
namespace {

constexpr int kWidth = 375;
constexpr int kHeight = 667;
// Longer than any chain of animations, the lock of a track change included.
constexpr double kRest = 5;
// Longer than the way of the panel from one place of rest to the next.
constexpr double kChain = 2.5;

constexpr const char* kListener = "org.plumvane.Sonavue2";
constexpr const char* kModes[] = {"springboard", "lockscreen", "application"};
constexpr const char* kAssigned[] = {"shake", "slide-in-left", "status-bar-hold", "home-hold"};
constexpr const char* kGestures[] = {"shake",     "status-bar-hold", "home-hold",
                                     "lock-hold", "keyboard-chord",  "slide-in-top"};

}  // namespace

RandomUser::RandomUser(launcher_e2e::RunningPhone& phone, std::uint32_t seed,
                       std::filesystem::path root, std::filesystem::path music)
    : phone_(phone), hand_(seed), root_(std::move(root)), music_(std::move(music)) {}

void RandomUser::prepare() {
  write_first_settings(root_);
  for (const char* mode : kModes) {
    for (const char* event : kAssigned) {
      say(
          fmt::format("print [[LAActivator sharedInstance] assignEvent:[LAEvent "
                      "eventWithName:@\"{}\" mode:@\"{}\"] toListenerWithName:@\"{}\"]",
                      event, mode, kListener));
    }
  }
  wait(1);
}

void RandomUser::say(const std::string& line) {
  last_line_ = line;
  if (aloud_) fmt::print("{:.2f} {}\n", seconds_, line);
  const std::string answer = phone_.ask(line);
  // A view that is not on the screen cannot be touched, a full dock takes no icon: life of a user.
  if (answer.starts_with("(")) refusals_ += line + ": " + answer + "\n";
}

void RandomUser::wait(double seconds) {
  say(fmt::format("advance {}", seconds));
  seconds_ += seconds;
}

std::string RandomUser::somewhere() {
  return fmt::format("{} {}", hand_.between(0, kWidth - 1), hand_.between(0, kHeight - 1));
}

void RandomUser::rest() {
  lift_the_finger();
  if (!held_button_.empty()) hold_a_button();
  wait(kRest);
}

void RandomUser::act_some(int fewest, int most) {
  for (int left = hand_.between(fewest, most); left > 0; --left)
    act();
}

void RandomUser::act() {
  static constexpr Weighted kActions[] = {
      {8, &RandomUser::tap_somewhere},     {14, &RandomUser::tap_a_control},
      {8, &RandomUser::drag_somewhere},    {14, &RandomUser::drag_the_icon},
      {5, &RandomUser::drag_the_twin},     {8, &RandomUser::drag_the_grabber},
      {4, &RandomUser::put_a_finger_down}, {6, &RandomUser::move_the_finger},
      {4, &RandomUser::lift_the_finger},   {5, &RandomUser::pull_from_an_edge},
      {6, &RandomUser::press_a_button},    {3, &RandomUser::hold_a_button},
      {9, &RandomUser::make_a_gesture},    {7, &RandomUser::cause_an_event},
      {3, &RandomUser::rearrange_icons},   {3, &RandomUser::type_something},
      {5, &RandomUser::write_settings},    {1, &RandomUser::damage_settings},
      {2, &RandomUser::move_a_song},       {20, &RandomUser::wait_a_little},
  };
  static const std::size_t total = [] {
    std::size_t sum = 0;
    for (const Weighted& each : kActions)
      sum += static_cast<std::size_t>(each.weight);
    return sum;
  }();
  std::size_t chosen = hand_.below(total);
  ++actions_;
  for (const Weighted& each : kActions) {
    const auto weight = static_cast<std::size_t>(each.weight);
    if (chosen < weight) {
      (this->*each.action)();
      break;
    }
    chosen -= weight;
  }
  pause_after_action();
}

void RandomUser::pause_after_action() {
  wait(mood_ == Mood::kCalm ? kChain : hand_.between(1, 200) / 100.0);
}

/// Most of what can be seen is seen from the panel or the banner: without a little purpose the
/// phone would be locked or in an application most of the time.
void RandomUser::begin_round(Mood mood) {
  mood_ = mood;
  if (hand_.once_in(3)) return;
  come_home();
  wait(2);
  if (hand_.once_in(2)) {
    say("gesture shake");
  } else {
    say("drag on musicIcon 187 200 0.3");
    seconds_ += 0.3;
  }
  pause_after_action();
}

void RandomUser::come_home() {
  if (hand_.once_in(4)) write_first_settings(root_);
  for (const char* line : {"system unlock", "system edit off", "button home", "button home"}) {
    say(line);
    wait(0.5);
  }
}

void RandomUser::tap_somewhere() {
  say("tap " + somewhere());
}

void RandomUser::tap_a_control() {
  static constexpr const char* kControls[] = {
      "play",  "play",      "next",      "back",  "art",   "art 2",    "container1",
      "music", "musicIcon", "searchBar", "grabs", "cover", "container"};
  say(fmt::format("tap on {}", hand_.of(kControls)));
}

void RandomUser::drag_somewhere() {
  const double time = hand_.between(2, 80) / 100.0;
  say(fmt::format("drag {} {} {}", somewhere(), somewhere(), time));
  seconds_ += time;
}

void RandomUser::drag_the_icon() {
  const double time = hand_.between(2, 60) / 100.0;
  say(fmt::format("drag on musicIcon {} {}", somewhere(), time));
  seconds_ += time;
}

void RandomUser::drag_the_twin() {
  say(fmt::format("drag on music {} 0.3", somewhere()));
  seconds_ += 0.3;
}

void RandomUser::drag_the_grabber() {
  const double time = hand_.between(2, 60) / 100.0;
  say(fmt::format("drag on grabs {} {}", somewhere(), time));
  seconds_ += time;
}

void RandomUser::put_a_finger_down() {
  static constexpr const char* kTargets[] = {"musicIcon", "music", "grabs", "art", "container"};
  if (finger_is_down_) return;
  finger_is_down_ = true;
  if (hand_.once_in(3)) return say("touch began " + somewhere());
  say(fmt::format("touch began on {}", hand_.of(kTargets)));
}

void RandomUser::move_the_finger() {
  if (finger_is_down_) say("touch moved " + somewhere());
}

void RandomUser::lift_the_finger() {
  if (!finger_is_down_) return;
  finger_is_down_ = false;
  say((hand_.once_in(5) ? "touch cancelled " : "touch ended ") + somewhere());
}

void RandomUser::pull_from_an_edge() {
  static constexpr const char* kPulls[] = {"187 665 187 300", "187 2 187 400",   "2 300 200 300",
                                           "373 300 200 300", "300 665 300 640", "60 2 60 40"};
  say(fmt::format("drag {} 0.25", hand_.of(kPulls)));
  seconds_ += 0.25;
}

void RandomUser::press_a_button() {
  static constexpr const char* kButtons[] = {"home", "home",      "home-double",
                                             "lock", "volume-up", "volume-down"};
  say(fmt::format("button {}", hand_.of(kButtons)));
}

void RandomUser::hold_a_button() {
  static constexpr const char* kButtons[] = {"home", "lock", "volume-up", "volume-down"};
  if (!held_button_.empty()) {
    say(fmt::format("button {} up", held_button_));
    held_button_.clear();
    return;
  }
  held_button_ = hand_.of(kButtons);
  say(fmt::format("button {} down", held_button_));
}

void RandomUser::make_a_gesture() {
  say(fmt::format("gesture {}", hand_.of(kGestures)));
}

void RandomUser::cause_an_event() {
  static constexpr const char* kEvents[] = {"banner Anna: Are you coming?",
                                            "notification-centre",
                                            "control-centre",
                                            "reachability",
                                            "lock",
                                            "unlock",
                                            "unlock",
                                            "open com.apple.Music",
                                            "open com.apple.Preferences"};
  say(fmt::format("system {}", hand_.of(kEvents)));
}

void RandomUser::rearrange_icons() {
  static constexpr const char* kMoves[] = {"edit on",
                                           "edit off",
                                           "edit off",
                                           "dock in com.apple.Music",
                                           "dock out com.apple.Music",
                                           "folder in com.apple.Music",
                                           "folder out com.apple.Music"};
  say(fmt::format("system {}", hand_.of(kMoves)));
}

void RandomUser::type_something() {
  static constexpr const char* kTexts[] = {"type a",     "type Lov",   "type ÄÖ .*[",  "key delete",
                                           "key return", "key escape", "key control-a"};
  say(hand_.of(kTexts));
}

void RandomUser::write_settings() {
  write_random_settings(root_, hand_);
}

void RandomUser::damage_settings() {
  damage_settings_file(root_, hand_);
}

void RandomUser::move_a_song() {
  move_random_song(music_, hand_);
}

void RandomUser::wait_a_little() {
  wait(hand_.between(1, 200) / 100.0);
}

}  // namespace random_use
