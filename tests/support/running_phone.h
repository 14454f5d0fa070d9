#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace launcher_e2e {

/// What a phone may have to live with.
enum class Hardship {
  kNone,
  kFullDisk,      // no file can grow, as when the disk has no room
  kOrdinaryUser,  // the permissions of files count, even where the tests are run by root
};

/// The built phone as its user meets it: a process with a command line, standard streams and an
/// end. Everything that is waited for has a deadline, behind which the answer is that it did not
/// come.
class RunningPhone {
 public:
  static constexpr std::chrono::seconds kDeadline{90};

  explicit RunningPhone(const std::vector<std::string>& arguments,
                        Hardship hardship = Hardship::kNone);
  ~RunningPhone();
  RunningPhone(const RunningPhone&) = delete;
  RunningPhone& operator=(const RunningPhone&) = delete;

  /// The console's answer to one line; needs `--console`.
  std::string ask(std::string_view line);
  /// The same in two steps, for a phone that will not answer soon.
  bool say(std::string_view line);
  std::string next_answer();
  void close_input();

  /// The status that the launcher ended with; -1 when it did not end, or not by itself.
  int wait_for_end();

  /// The phone's process with this program; 0 when there is none at this moment.
  pid_t child(std::string_view program) const;
  pid_t home_screen() const { return child("SpringBoard"); }
  /// The process that takes the place of `before`; 0 when none came. Begin with 0.
  pid_t wait_for_home_screen_after(pid_t before);

  /// What was printed so far.
  const std::string& output() const { return output_; }
  const std::string& errors() const { return errors_; }
  std::vector<std::string> error_lines() const;
  int count_of_errors_with(std::string_view text) const;
  /// Has `text` been printed on the error stream, or is it before long?
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
  std::size_t answered_ = 0;  // how much of the output was given as answers
};

}  // namespace launcher_e2e
