#pragma once

#include <cstdio>
#include <deque>
#include <optional>
#include <string>

#include "host/launcher/patient_output.h"
#include "host/launcher/script.h"

namespace host::launcher {

/// The user's end of the console. It sends the lines of a script, then those of standard input, one
/// at a time to the process that runs the phone's console, and prints its answers. `play FILE` is
/// replaced by the lines of another script; its relative name, and that of `compare FILE`, is
/// looked up beside the script that contains it. The front outlives the process: after a restart
/// the next line goes to the new one. Nothing here waits, neither for the process nor for the
/// reader of the answers.
class ConsoleFront {
 public:
  static constexpr int kFailed = 1;

  /// `input` is read after the script; -1 means a console that ends with its script. Answers are
  /// printed to `output`; a failure in a script ends the console and is printed to `errors`.
  ConsoleFront(const Script& script, int input, std::FILE* output, std::FILE* errors);

  /// Tells the witness of every line of the scripts. Call it before the first process.
  void tell(ScriptWitness* witness) { witness_ = witness; }

  /// Connects the front to a process.
  void attach(int descriptor);
  enum class Departure { Asked, Unexpected };
  /// Call when the process has ended; a line that it has not answered gets an answer here.
  void detach(Departure departure);

  /// The descriptors to wait on; -1 when there is nothing to wait for.
  int awaited_answer() const { return output_.is_full() ? -1 : process_; }
  int awaited_input() const;
  /// These two become writable.
  int awaited_process() const { return unsent_.empty() ? -1 : process_; }
  int awaited_output() const { return output_.awaited(); }

  /// Returns false when there was nothing to read.
  bool read_answer();
  void read_input();
  void send_more();
  void write_more() { output_.write_some(); }

  /// The exit status, once a line of the script has failed.
  std::optional<int> verdict() const { return verdict_; }

 private:
  void send_next();
  void send_line(const std::string& line);
  /// Reports the failure of a line that is not for the process, after all earlier answers.
  void refuse(const std::string& reason);
  void end_input();
  void answered(const std::string& given);
  void put_first(const Script& script, int depth);
  /// Returns true if the line plays another script, which has then been inserted or refused.
  bool play(const std::string& line, const std::string& beside, int depth);
  void fail(const std::string& answer);
  void print(const std::string& line);

  std::deque<ScriptLine> script_;
  /// The answer to a line that the process does not know.
  std::optional<std::string> refusal_;
  ScriptLine line_;  // the script line that was sent last
  int input_;
  const bool answers_all_;  // typed lines show every answer
  PatientOutput output_;
  std::FILE* errors_;
  ScriptWitness* witness_ = nullptr;
  int process_ = -1;
  std::string unsent_;
  std::deque<std::string> typed_;
  std::string typed_part_;
  std::string answer_part_;
  bool waiting_ = false;
  bool typing_ = false;  // the first script is over
  bool from_script_ = false;
  bool is_cut_off_ = false;  // the input ended in the middle of a line
  bool quitting_ = false;    // lines after `quit` are not sent
  std::optional<int> verdict_;
};

}  // namespace host::launcher
