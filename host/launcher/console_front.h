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

/// The user's end of the console. `play FILE` stands for the lines of another script; a relative
/// name is looked for beside the script that says it. It hands the lines of a script, then those of
/// standard input, to the process that the phone's console runs in, one at a time, and passes its
/// answers on. It outlives that process: after a restart the next line goes to the new one.
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
  /// A line that waits for its turn, and where it stands.
  struct Line {
    std::string text;
    std::string script;
    std::size_t number;
    int depth;  // how many scripts have played each other
  };

  void send_next();
  void send_line(std::string line);
  void answered(const std::string& given);
  void put_first(const Script& script, int depth);
  /// True when the line was one to play another script, which has been put in its place or refused.
  bool play(const std::string& line, const std::string& beside, int depth);
  void fail(const std::string& answer);

  std::deque<Line> script_;
  /// What a line is answered that the process knows nothing of.
  std::optional<std::string> refusal_;
  Line line_;  // of a script, the one that was sent last
  int input_;
  const bool answers_all_;  // whoever types sees every answer
  std::FILE* output_;
  std::FILE* errors_;
  int process_ = -1;
  std::deque<std::string> typed_;
  std::string typed_part_;
  std::string answer_part_;
  bool waiting_ = false;
  bool typing_ = false;  // the first script is over
  bool from_script_ = false;
  bool quitting_ = false;  // whatever was typed behind it has nobody to go to
  std::optional<int> verdict_;
};

}  // namespace host::launcher
