#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace launcher_e2e {

/// Adverse conditions for a phone.
enum class Hardship {
  kNone,
  kFullDisk,      // no file can grow, as on a full disk
  kOrdinaryUser,  // file permissions apply even when the tests are run by root
};

/// The built phone as its user runs it: a process with a command line, standard streams and an exit
/// status. Every wait has a deadline; after that it returns that the event did not happen.
class RunningPhone {
 public:
  static constexpr std::chrono::seconds kDeadline{90};

  explicit RunningPhone(const std::vector<std::string>& arguments,
                        Hardship hardship = Hardship::kNone);
  ~RunningPhone();
  RunningPhone(const RunningPhone&) = delete;
  RunningPhone& operator=(const RunningPhone&) = delete;

  /// Returns the console's answer to one line; requires `--console`.
  std::string ask(std::string_view line);
  /// The same in two steps, for a phone that will take time to answer.
  bool say(std::string_view line);
  std::string next_answer();
  void close_input();

  /// Returns the launcher's exit status; -1 when it did not exit, or was killed.
  int wait_for_end();

  /// Kills the launcher, and with it every process of the phone.
  void kill_launcher();

  pid_t launcher() const { return launcher_; }
  /// Returns the phone's process that runs this program; 0 if it is not running.
  pid_t child(std::string_view program) const;
  pid_t home_screen() const { return child("SpringBoard"); }
  /// Returns the process that replaces `before`; 0 when none appeared. Pass 0 first.
  pid_t wait_for_home_screen_after(pid_t before);

  /// The output so far.
  const std::string& output() const { return output_; }
  const std::string& errors() const { return errors_; }
  std::vector<std::string> error_lines() const;
  int count_of_errors_with(std::string_view text) const;
  /// Returns whether `text` has been printed on the error stream `times` times, or is before the
  /// deadline.
  bool waits_for_error(std::string_view text, int times = 1);

 private:
  bool pump_until(const std::function<bool()>& done);
  bool take_output();

  pid_t launcher_ = 0;
  int input_ = -1;
  int output_end_ = -1;
  int errors_end_ = -1;
  std::string output_;
  std::string errors_;
  std::size_t answered_ = 0;  // how much of the output has been returned as answers
};

}  // namespace launcher_e2e
