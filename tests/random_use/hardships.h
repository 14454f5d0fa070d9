#pragma once

#include <chrono>
#include <filesystem>
#include <functional>

#include "tests/random_use/random_hand.h"
#include "tests/random_use/used_phone.h"

namespace random_use {

/// What happens to a phone in the middle of its use: files that cannot be read, a full disk, an
/// application that is stopped, a home screen that crashes. Each lasts for one burst at most.
class Hardships {
 public:
  Hardships(UsedPhone& phone, std::uint32_t seed) : phone_(phone), hand_(seed) {}
  ~Hardships() { relieve(); }
  Hardships(const Hardships&) = delete;
  Hardships& operator=(const Hardships&) = delete;

  /// Lets something happen now and then.
  void strike();
  /// Makes it as before, as far as the phone does not do that by itself.
  void relieve();
  int count() const { return count_; }

 private:
  using Clock = std::chrono::steady_clock;

  bool hide_a_file();
  bool fill_the_disk();
  bool stop_an_application();
  bool crash_the_home_screen();

  UsedPhone& phone_;
  RandomHand hand_;
  std::function<void()> relief_;
  Clock::time_point calm_since_ = Clock::now();
  int count_ = 0;
};

}  // namespace random_use
