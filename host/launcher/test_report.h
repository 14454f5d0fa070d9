#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/launcher/script.h"
#include "host/runtime/clock.h"

namespace host::launcher {

/// The outcome of scripts in the JUnit form that build servers read: a suite for each script, and a
/// case for each line that checks something (`expect`, `compare`, `rest`) or has failed. A case
/// lasts from the one before it to its own end.
class TestReport final : public ScriptWitness {
 public:
  explicit TestReport(const Clock& clock) : clock_(clock) {}

  void begin(const std::string& script);
  void printed(std::string_view text) override;
  void answered(const ScriptLine& line, std::string_view failure) override;
  void left_out(const ScriptLine& line) override;
  /// `status` is the exit status of the phone that played the script.
  void end(int status);

  std::string xml() const;

 private:
  enum class Outcome { Passed, Failed, Skipped, Error };

  struct Case {
    ScriptLine line;
    Outcome outcome = Outcome::Passed;
    std::string message;
    double seconds = 0;
  };
  struct Suite {
    std::string script;
    std::vector<Case> cases;
    std::string printed;
    double seconds = 0;

    std::size_t count(Outcome outcome) const;
    std::string counts() const;
    std::string xml() const;
    std::string xml(const Case& one) const;
  };

  void add(const ScriptLine& line, Outcome outcome, std::string_view message);

  const Clock& clock_;
  std::vector<Suite> suites_;
  double began_ = 0;
  double last_ = 0;  // when the case before ended
};

}  // namespace host::launcher
