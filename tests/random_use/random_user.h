#pragma once

#include <string_view>

#include "tests/random_use/random_hand.h"
#include "tests/random_use/used_phone.h"

namespace random_use {

/// Somebody who does to a phone whatever comes to mind: fingers, buttons, gestures, applications,
/// other programs' settings, songs that come and go. The same seed does the same.
class RandomUser {
 public:
  RandomUser(UsedPhone& phone, std::uint32_t seed) : phone_(phone), hand_(seed) {}

  /// Gives the banner gestures in every mode, and switches the panel on.
  void prepare();
  /// Brings the phone to where things happen, and then does some of them, mostly in haste.
  void burst();
  int actions() const { return actions_; }

 private:
  void pause();
  /// Says the lines of a pattern, with something for each of its words in angle brackets.
  void perform(const char* pattern);
  std::string filled(std::string_view pattern);
  std::string something(std::string_view word);
  std::string point();

  UsedPhone& phone_;
  RandomHand hand_;
  int actions_ = 0;
  bool hasty_ = true;
};

}  // namespace random_use
