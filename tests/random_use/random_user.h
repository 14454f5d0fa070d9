#pragma once

#include <filesystem>
#include <string>

#include "tests/launcher_e2e/running_phone.h"
#include "tests/random_use/random_hand.h"

namespace random_use {

/// Somebody who does to a phone whatever comes to mind: fingers, buttons, gestures, notifications,
/// other programs' settings, songs that come and go. The same seed does the same.
class RandomUser {
 public:
  /// `root` is the device's folder, `music` the one with its songs.
  RandomUser(launcher_e2e::RunningPhone& phone, std::uint32_t seed, std::filesystem::path root,
             std::filesystem::path music);

  /// Gives the banner gestures in every mode, and switches the panel on.
  void prepare();
  /// Prints every line that is said from now on.
  void say_aloud() { aloud_ = true; }
  /// Calm, it waits after everything that may move the panel until that has come to an end; hasty,
  /// it does the next thing while the last one is still on its way.
  enum class Mood { kCalm, kHasty };
  /// Now and then brings the phone to where things happen.
  void begin_round(Mood mood);
  void come_home();
  /// Between `fewest` and `most` actions.
  void act_some(int fewest, int most);
  /// Lifts every finger, lets go of every button and waits until all has come to rest.
  void rest();

  double seconds() const { return seconds_; }
  int actions() const { return actions_; }
  /// The line that was asked last, for a report.
  const std::string& last_line() const { return last_line_; }
  /// Lines that were answered with an error that is not the user's own.
  const std::string& refusals() const { return refusals_; }

 private:
  using Action = void (RandomUser::*)();
  struct Weighted {
    int weight;
    Action action;
  };

  void act();
  void pause_after_action();
  void say(const std::string& line);
  void wait(double seconds);
  std::string somewhere();

  void tap_somewhere();
  void tap_a_control();
  void drag_somewhere();
  void drag_the_icon();
  void drag_the_twin();
  void drag_the_grabber();
  void put_a_finger_down();
  void move_the_finger();
  void lift_the_finger();
  void pull_from_an_edge();
  void press_a_button();
  void hold_a_button();
  void make_a_gesture();
  void cause_an_event();
  void rearrange_icons();
  void type_something();
  void write_settings();
  void damage_settings();
  void move_a_song();
  void wait_a_little();

  launcher_e2e::RunningPhone& phone_;
  RandomHand hand_;
  std::filesystem::path root_;
  std::filesystem::path music_;
  double seconds_ = 0;
  int actions_ = 0;
  Mood mood_ = Mood::kCalm;
  bool finger_is_down_ = false;
  bool aloud_ = false;
  std::string held_button_;
  std::string last_line_;
  std::string refusals_;
};

}  // namespace random_use
