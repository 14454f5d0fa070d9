#include "host/launcher/console_front.h"

#include <sys/socket.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <utility>

namespace host::launcher {
namespace {

constexpr const char* kQuit = "quit";
constexpr std::string_view kPlay = "play ";
constexpr int kDeepest = 8;

/// Appends the available bytes; returns false at the end of the input.
bool append_from(int descriptor, std::string& text) {
  char bytes[4096];
  const auto count = read(descriptor, bytes, sizeof bytes);
  if (count <= 0) return false;
  text.append(bytes, static_cast<std::size_t>(count));
  return true;
}

/// Removes the first complete line from `text` and returns it.
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

ConsoleFront::ConsoleFront(const Script& script, int input, std::FILE* output, std::FILE* errors)
    : input_(input), answers_all_(input >= 0), output_(output), errors_(errors) {
  put_first(script, 0);
  if (input_ < 0) typed_.push_back(kQuit);
}

int ConsoleFront::awaited_input() const {
  const bool script_is_over = script_.empty() && !waiting_;
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

void ConsoleFront::put_first(const Script& script, int depth) {
  std::size_t number = script.lines.size();
  for (auto line = script.lines.rbegin(); line != script.lines.rend(); ++line)
    script_.push_front({*line, script.name, number--, depth});
}

bool ConsoleFront::play(const std::string& line, const std::string& beside, int depth) {
  if (!line.starts_with(kPlay)) return false;
  const auto named = std::filesystem::path(line.substr(kPlay.size()));
  const auto file = std::filesystem::path(beside).parent_path() / named;
  const auto script = depth < kDeepest ? read_script(file) : std::nullopt;
  if (script) {
    put_first(*script, depth + 1);
    return true;
  }
  // An empty line goes to the process, to report the refusal only after all earlier answers.
  refusal_ = depth < kDeepest ? "error: " + file.string() + " cannot be read"
                              : "error: the scripts are nested too deeply";
  send_line("");
  return true;
}

void ConsoleFront::send_next() {
  while (process_ >= 0 && !waiting_ && !verdict_ && !quitting_) {
    from_script_ = !script_.empty();
    if (from_script_) {
      line_ = std::move(script_.front());
      script_.pop_front();
      if (play(line_.text, line_.script, line_.depth)) continue;
      send_line(line_.text);
    } else if (!typed_.empty()) {
      const std::string line = std::move(typed_.front());
      typed_.pop_front();
      typing_ = true;
      if (play(line, {}, 0)) continue;
      send_line(line);
    } else {
      return;
    }
  }
}

void ConsoleFront::send_line(std::string line) {
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

/// The first failure ends the script, and the console with it, unless the script was typed in.
void ConsoleFront::fail(const std::string& answer) {
  std::fprintf(errors_, "%s:%zu: %s\n", line_.script.c_str(), line_.number, answer.c_str());
  script_.clear();
  if (!typing_) verdict_ = kFailed;
}

void ConsoleFront::answered(const std::string& given) {
  const std::string answer = std::exchange(refusal_, std::nullopt).value_or(given);
  waiting_ = false;
  const bool failed = answer.starts_with("error: ");
  if (!from_script_) {
    if (answers_all_) std::fprintf(output_, "%s\n", answer.c_str());
  } else if (failed) {
    fail(answer);
  } else if (answer != "ok") {
    std::fprintf(output_, "%s\n", answer.c_str());
  }
  std::fflush(output_);
}

void ConsoleFront::read_answer() {
  if (!append_from(process_, answer_part_)) {
    process_ = -1;  // the supervisor reports how it ended
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
