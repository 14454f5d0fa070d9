#include "host/launcher/console_front.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

#include "host/basics/console_line.h"

namespace host::launcher {
namespace {

constexpr const char* kQuit = "quit";
constexpr std::string_view kPlay = "play ";
constexpr std::string_view kError = "error: ";
constexpr std::string_view kCompare = "compare ";
constexpr int kDeepest = 8;

// Reading pauses while so many lines wait.
constexpr std::size_t kMostTypedLines = 1000;
constexpr std::size_t kShownPart = 40;

/// Gives the line of a command that reads a file the file's whole name, since the process that
/// reads it knows neither the script nor the folder of the user.
std::string with_whole_name(const std::string& line, const std::string& beside) {
  const auto start = line.find_first_not_of(" \t");
  if (start == std::string::npos || line.compare(start, kCompare.size(), kCompare) != 0)
    return line;
  const auto name = line.find_first_not_of(" \t", start + kCompare.size());
  if (name == std::string::npos) return line;
  std::error_code error;
  const auto file = std::filesystem::path(beside).parent_path() / line.substr(name);
  const std::string whole = std::filesystem::absolute(file, error);
  // A name with a line feed would be two lines.
  return error || whole.find('\n') != std::string::npos ? line : std::string(kCompare) + whole;
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

ConsoleFront::ConsoleFront(const Script& script, int input, std::FILE* output, std::FILE* errors)
    : input_(input), answers_all_(input >= 0), output_(fileno(output)), errors_(errors) {
  put_first(script, 0);
  if (input_ < 0) typed_.push_back(kQuit);
}

int ConsoleFront::awaited_input() const {
  const bool script_is_over = script_.empty() && !waiting_;
  const bool has_room = typed_.size() < kMostTypedLines && !output_.is_full();
  return script_is_over && has_room && process_ >= 0 ? input_ : -1;
}

void ConsoleFront::attach(int descriptor) {
  process_ = descriptor;
  answer_part_.clear();
  send_next();
}

void ConsoleFront::detach(Departure departure) {
  process_ = -1;
  unsent_.clear();
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
  std::string problem = "the scripts are nested too deeply";
  const auto script = depth < kDeepest ? read_script(file, Pipes::Refused, problem) : std::nullopt;
  if (script) {
    put_first(*script, depth + 1);
  } else {
    refuse(problem);
  }
  return true;
}

// An empty line goes to the process, to report the refusal only after all earlier answers.
void ConsoleFront::refuse(const std::string& reason) {
  refusal_ = std::string(kError) + reason;
  send_line("");
}

void ConsoleFront::send_next() {
  while (process_ >= 0 && !waiting_ && !verdict_ && !quitting_ && !output_.is_full()) {
    from_script_ = !script_.empty();
    if (from_script_) {
      line_ = std::move(script_.front());
      script_.pop_front();
      if (play(line_.text, line_.script, line_.depth)) continue;
      send_line(with_whole_name(line_.text, line_.script));
    } else if (!typed_.empty()) {
      const std::string line = std::move(typed_.front());
      typed_.pop_front();
      typing_ = true;
      if (play(line, {}, 0)) continue;
      send_line(with_whole_name(line, {}));
    } else {
      return end_input();
    }
  }
}

void ConsoleFront::end_input() {
  if (!is_cut_off_) return;
  std::fprintf(errors_, "standard input ends in the middle of a line, which is ignored: %s\n",
               typed_part_.substr(0, kShownPart).c_str());
  verdict_ = kFailed;
}

void ConsoleFront::send_line(const std::string& line) {
  if (line.size() > kLongestConsoleLine) return refuse("the line is too long");
  quitting_ = line == kQuit;
  waiting_ = true;
  unsent_ = line + "\n";
  send_more();
}

void ConsoleFront::send_more() {
  const auto count = send(process_, unsent_.data(), unsent_.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
  if (count > 0) unsent_.erase(0, static_cast<std::size_t>(count));
  // A process that is ending answers the line by that.
  if (count < 0 && errno != EAGAIN && errno != EINTR) unsent_.clear();
}

/// The first failure ends the script, and the console with it, unless the script was typed in.
void ConsoleFront::fail(const std::string& answer) {
  std::fprintf(errors_, "%s: %s\n", line_.place().c_str(), answer.c_str());
  for (const ScriptLine& line : script_) {
    if (witness_) witness_->left_out(line);
  }
  script_.clear();
  if (!typing_) verdict_ = kFailed;
}

void ConsoleFront::answered(const std::string& given) {
  const std::string answer = std::exchange(refusal_, std::nullopt).value_or(given);
  waiting_ = false;
  const bool failed = answer.starts_with(kError);
  if (!from_script_) {
    if (answers_all_) output_.put(answer + "\n");
    return;
  }
  if (witness_)
    witness_->answered(line_,
                       std::string_view(answer).substr(failed ? kError.size() : answer.size()));
  if (failed) {
    fail(answer);
  } else if (answer != "ok") {
    print(answer);
  }
}

void ConsoleFront::print(const std::string& line) {
  output_.put(line + "\n");
  if (witness_ && from_script_) witness_->printed(line + "\n");
}

bool ConsoleFront::read_answer() {
  char bytes[4096];
  const auto count = recv(process_, bytes, sizeof bytes, MSG_DONTWAIT);
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return false;
  if (count <= 0) {
    process_ = -1;  // the supervisor reports how it ended
    return false;
  }
  answer_part_.append(bytes, static_cast<std::size_t>(count));
  while (const auto line = take_line(answer_part_)) {
    if (!waiting_) continue;
    if (line->starts_with(kListedLine)) {
      print(*line);
    } else {
      answered(*line);
    }
  }
  send_next();
  return true;
}

void ConsoleFront::read_input() {
  char bytes[4096];
  const auto count = read(input_, bytes, sizeof bytes);
  if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (count > 0) {
    typed_part_.append(bytes, static_cast<std::size_t>(count));
  } else {
    input_ = -1;
    is_cut_off_ = !typed_part_.empty();
    if (!is_cut_off_) typed_.emplace_back(kQuit);
  }
  while (auto line = take_line(typed_part_))
    typed_.push_back(std::move(*line));
  // Enough of a line that is too long stays for it to be refused.
  typed_part_.resize(std::min(typed_part_.size(), kLongestConsoleLine + 1));
  send_next();
}

}  // namespace host::launcher
