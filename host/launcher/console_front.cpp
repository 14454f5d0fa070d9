#include "host/launcher/console_front.h"

#include <sys/socket.h>
#include <unistd.h>

#include <fstream>
#include <utility>

namespace host::launcher {
namespace {

constexpr const char* kQuit = "quit";

/// Appends what can be read now; false at the end of the input.
bool append_from(int descriptor, std::string& text) {
  char bytes[4096];
  const auto count = read(descriptor, bytes, sizeof bytes);
  if (count <= 0) return false;
  text.append(bytes, static_cast<std::size_t>(count));
  return true;
}

/// Takes the first whole line out of `text`.
std::optional<std::string> take_line(std::string& text) {
  const auto end = text.find('\n');
  if (end == std::string::npos) return std::nullopt;
  std::string line = text.substr(0, end);
  text.erase(0, end + 1);
  return line;
}

}  // namespace

std::optional<Script> read_script(const std::string& file) {
  std::ifstream stream(file);
  if (!stream) return std::nullopt;
  Script made{file, {}};
  for (std::string line; std::getline(stream, line);)
    made.lines.push_back(line);
  return made;
}

ConsoleFront::ConsoleFront(Script script, int input, std::FILE* output, std::FILE* errors)
    : script_(std::move(script)),
      input_(input),
      answers_all_(input >= 0),
      output_(output),
      errors_(errors) {
  if (input_ < 0) typed_.push_back(kQuit);
}

int ConsoleFront::awaited_input() const {
  const bool script_is_over = next_line_ == script_.lines.size() && !waiting_;
  return script_is_over && process_ >= 0 ? input_ : -1;
}

void ConsoleFront::attach(int descriptor) {
  process_ = descriptor;
  answer_part_.clear();
  send_next();
}

void ConsoleFront::detach(Departure departure) {
  process_ = -1;
  if (!waiting_) return;
  answered(departure == Departure::Asked ? "ok" : "error: the process ended before it answered");
}

void ConsoleFront::send_next() {
  if (process_ < 0 || waiting_ || verdict_ || quitting_) return;
  std::string line;
  from_script_ = next_line_ < script_.lines.size();
  if (from_script_) {
    line = script_.lines[next_line_++];
  } else if (!typed_.empty()) {
    line = std::move(typed_.front());
    typed_.pop_front();
  } else {
    return;
  }
  quitting_ = line == kQuit;
  line += '\n';
  waiting_ = true;
  std::size_t sent = 0;
  while (sent < line.size()) {
    const auto count = send(process_, line.data() + sent, line.size() - sent, MSG_NOSIGNAL);
    if (count <= 0) return;  // the process is ending, which answers the line
    sent += static_cast<std::size_t>(count);
  }
}

void ConsoleFront::answered(const std::string& answer) {
  waiting_ = false;
  const bool failed = answer.starts_with("error: ");
  if (!from_script_) {
    if (answers_all_) std::fprintf(output_, "%s\n", answer.c_str());
  } else if (failed) {
    std::fprintf(errors_, "%s:%zu: %s\n", script_.name.c_str(), next_line_, answer.c_str());
    verdict_ = kFailed;
  } else if (answer != "ok") {
    std::fprintf(output_, "%s\n", answer.c_str());
  }
  std::fflush(output_);
}

void ConsoleFront::read_answer() {
  if (!append_from(process_, answer_part_)) {
    process_ = -1;  // whoever supervises it will say how it ended
    return;
  }
  while (const auto line = take_line(answer_part_)) {
    if (waiting_) answered(*line);
  }
  send_next();
}

void ConsoleFront::read_input() {
  if (!append_from(input_, typed_part_)) {
    if (!typed_part_.empty()) typed_.push_back(std::exchange(typed_part_, {}));
    typed_.push_back(kQuit);
    input_ = -1;
  }
  while (auto line = take_line(typed_part_))
    typed_.push_back(std::move(*line));
  send_next();
}

}  // namespace host::launcher
