#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tests/random_use/used_phone.h"

namespace random_use {

struct Fault {
  /// Identifies equal faults.
  std::string kind;
  std::string text;
  /// The `expect` lines that fail; empty when a process failed.
  std::vector<std::string> expectations;
};

/// The value that an expression must have.
struct Demand {
  const char* expression;
  const char* value;
};

/// Decides whether a phone is still usable: returns to the home screen as a person would, checks
/// that nothing is left of earlier actions, and opens and closes the panel.
class Oracle {
 public:
  explicit Oracle(UsedPhone& phone) : phone_(phone) {}

  /// Returns the first fault; nothing when there is none.
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
