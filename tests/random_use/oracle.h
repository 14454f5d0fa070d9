#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tests/random_use/used_phone.h"

namespace random_use {

struct Fault {
  /// What tells it from other faults.
  std::string kind;
  std::string text;
  /// The lines that fail; none where a process went wrong.
  std::vector<std::string> expectations;
};

/// A value that an expression has to have.
struct Demand {
  const char* expression;
  const char* value;
};

/// Says whether a phone can be used: brings it home as a person would, looks whether nothing is
/// left of what was done to it, and opens and closes the panel.
class Oracle {
 public:
  explicit Oracle(UsedPhone& phone) : phone_(phone) {}

  /// The first fault; nothing when all is well.
  std::optional<Fault> judge();

 private:
  void let_go();
  void get_out();
  void wake();
  void answer_alerts();
  void unlock();
  void come_home();
  void wait_for_stillness();
  std::string unrest();
  bool sees(std::string_view words);
  void bring_the_icon_back();

  std::optional<Fault> at_home();
  std::optional<Fault> drag_and_close();
  std::optional<Fault> rests();
  std::optional<Fault> holds(const char* when, std::span<const Demand> demands);
  std::optional<Fault> process();

  UsedPhone& phone_;
};

}  // namespace random_use
