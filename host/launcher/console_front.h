#pragma once

#include <cstdio>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace host::launcher {

/// The lines of a script and where they come from, for messages.
struct Script {
  std::string name;
  std::vector<std::string> lines;
};

/// Nothing when the file cannot be read.
std::optional<Script> read_script(const std::string& file);

/// The user's end of the console: hands the lines of a script, then those of standard input, to the
/// process that the phone's console runs in, one at a time, and passes its answers on. It outlives
/// that process: after a restart the next line goes to the new one.
class ConsoleFront {
 public:
  static constexpr int kFailed = 1;

  /// `input` is read after the script, -1 for a console that ends with its script. Answers are
  /// printed to `output`; what fails in a script ends the console and is told to `errors`.
  ConsoleFront(Script script, int input, std::FILE* output, std::FILE* errors);

  /// A process listens at this descriptor from now on.
  void attach(int descriptor);
  enum class Departure { Asked, Unexpected };
  /// The process is gone; a line that it had not answered is answered for it.
  void detach(Departure departure);

  /// The descriptors to wait at; -1 when there is nothing to wait for.
  int awaited_answer() const { return process_; }
  int awaited_input() const;

  void read_answer();
  void read_input();

  /// The status to end with, once a line of the script failed.
  std::optional<int> verdict() const { return verdict_; }

 private:
  void send_next();
  void answered(const std::string& answer);

  Script script_;
  int input_;
  const bool answers_all_;  // whoever types sees every answer
  std::FILE* output_;
  std::FILE* errors_;
  int process_ = -1;
  std::size_t next_line_ = 0;
  std::deque<std::string> typed_;
  std::string typed_part_;
  std::string answer_part_;
  bool waiting_ = false;
  bool from_script_ = false;
  bool quitting_ = false;  // whatever was typed behind it has nobody to go to
  std::optional<int> verdict_;
};

}  // namespace host::launcher
