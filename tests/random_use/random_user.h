#pragma once

#include <string_view>

#include "tests/random_use/random_hand.h"
#include "tests/random_use/used_phone.h"

namespace random_use {

/// A user who does anything to a phone: fingers, buttons, gestures, applications, settings changed
/// by other programs, songs that come and go. The same seed has the same effect.
class RandomUser {
 public:
  RandomUser(UsedPhone& phone, std::uint32_t seed) : phone_(phone), hand_(seed) {}

  /// Assigns gestures to the banner in every mode, and switches the panel on.
  void prepare();
  /// Brings up a place on the phone and performs some actions there, mostly in haste.
  void burst();
  int actions() const { return actions_; }

 private:
  void pause();
  /// Executes the lines of a pattern, with its placeholders replaced.
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
