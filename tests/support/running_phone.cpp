#include "tests/support/running_phone.h"

#include <fcntl.h>
#include <linux/capability.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace launcher_e2e {
namespace {

constexpr int kLookEvery = 10;  // milliseconds

struct Pipe {
  Pipe() {
    int made[2];
    if (pipe2(made, O_CLOEXEC) != 0) throw std::runtime_error{"no pipe"};
    reading = made[0];
    writing = made[1];
  }
  int reading;
  int writing;
};

void suffer(Hardship hardship) {
  // A write that does not fit fails then, as on a full disk, instead of ending the process.
  signal(SIGXFSZ, SIG_IGN);
  if (hardship == Hardship::kFullDisk) {
    const rlimit nothing{0, 0};
    setrlimit(RLIMIT_FSIZE, &nothing);
  } else if (hardship == Hardship::kOrdinaryUser) {
    // Ordinary users do not have these capabilities in the first place.
    prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
    prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
  }
}

/// `listed` is the process's folder in /proc, whose `stat` reads `number (name) state parent …`.
bool is_child_of(pid_t launcher, std::string_view program, const std::filesystem::path& listed) {
  std::string text;
  std::getline(std::ifstream(listed / "stat"), text);
  const std::string wanted = "(" + std::string(program) + ") ";
  const auto name = text.find(wanted);
  if (name == text.npos) return false;
  const auto behind = name + wanted.size();
  const char state = text[behind];
  pid_t parent = 0;
  std::from_chars(text.data() + behind + 2, text.data() + text.size(), parent);
  return parent == launcher && state != 'Z';
}

bool append_from(int& descriptor, std::string& text) {
  char bytes[4096];
  const auto count = read(descriptor, bytes, sizeof bytes);
  if (count > 0) {
    text.append(bytes, static_cast<std::size_t>(count));
    return true;
  }
  close(std::exchange(descriptor, -1));
  return false;
}

}  // namespace

RunningPhone::RunningPhone(const std::vector<std::string>& arguments, Hardship hardship) {
  std::vector<std::string> texts = {LAUNCHER};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& text : texts)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);

  const Pipe input;
  const Pipe output;
  const Pipe errors;
  launcher_ = fork();
  if (launcher_ < 0) throw std::runtime_error{"no process"};
  if (launcher_ == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(input.reading, STDIN_FILENO);
    dup2(output.writing, STDOUT_FILENO);
    dup2(errors.writing, STDERR_FILENO);
    suffer(hardship);
    execv(LAUNCHER, pointers.data());
    _exit(127);
  }
  for (const int theirs : {input.reading, output.writing, errors.writing})
    close(theirs);
  input_ = input.writing;
  output_end_ = output.reading;
  errors_end_ = errors.reading;
}

RunningPhone::~RunningPhone() {
  if (launcher_) {
    kill(launcher_, SIGTERM);
    wait_for_end();
  }
  if (launcher_) {
    kill(launcher_, SIGKILL);
    waitpid(launcher_, nullptr, 0);
  }
  close_input();
  for (const int end : {output_end_, errors_end_}) {
    if (end >= 0) close(end);
  }
}

void RunningPhone::close_input() {
  if (input_ >= 0) close(std::exchange(input_, -1));
}

std::string RunningPhone::ask(std::string_view line) {
  return say(line) ? next_answer() : "(the phone is not listening)";
}

bool RunningPhone::say(std::string_view line) {
  const std::string sent = std::string(line) + "\n";
  signal(SIGPIPE, SIG_IGN);
  return write(input_, sent.data(), sent.size()) == static_cast<ssize_t>(sent.size());
}

std::string RunningPhone::next_answer() {
  std::size_t end = 0;
  const bool came = pump_until([&] {
    // Indented lines belong to the answer that follows them.
    for (std::size_t line = answered_; line < output_.size(); line = end + 1) {
      end = output_.find('\n', line);
      if (end == output_.npos) return false;
      if (output_[line] != ' ') return true;
    }
    return false;
  });
  if (!came) return "(no answer)";
  return output_.substr(std::exchange(answered_, end + 1), end - answered_);
}

int RunningPhone::wait_for_end() {
  int status = 0;
  const bool ended =
      launcher_ && pump_until([&] { return waitpid(launcher_, &status, WNOHANG) == launcher_; });
  if (!ended) return -1;
  launcher_ = 0;
  while (take_output()) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void RunningPhone::kill_launcher() {
  kill(launcher_, SIGKILL);
  wait_for_end();
}

pid_t RunningPhone::child(std::string_view program) const {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator("/proc", error)) {
    const std::string name = entry.path().filename();
    pid_t number = 0;
    std::from_chars(name.data(), name.data() + name.size(), number);
    if (number > 0 && is_child_of(launcher_, program, entry.path())) return number;
  }
  return 0;
}

pid_t RunningPhone::wait_for_home_screen_after(pid_t before) {
  pid_t found = 0;
  const bool came = pump_until([&] {
    found = home_screen();
    return found != 0 && found != before;
  });
  return came ? found : 0;
}

std::vector<std::string> RunningPhone::error_lines() const {
  std::vector<std::string> lines;
  for (std::size_t start = 0; start < errors_.size();) {
    const auto end = std::min(errors_.find('\n', start), errors_.size());
    lines.push_back(errors_.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

int RunningPhone::count_of_errors_with(std::string_view text) const {
  int found = 0;
  for (const std::string& line : error_lines())
    found += line.find(text) != line.npos;
  return found;
}

bool RunningPhone::waits_for_error(std::string_view text, int times) {
  return pump_until([&] { return count_of_errors_with(text) >= times; });
}

bool RunningPhone::pump_until(const std::function<bool()>& done) {
  const auto deadline = std::chrono::steady_clock::now() + kDeadline;
  while (!done()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    take_output();
  }
  return true;
}

/// Waits a moment for output. Returns false when there was none.
bool RunningPhone::take_output() {
  pollfd waiting[] = {{output_end_, POLLIN, 0}, {errors_end_, POLLIN, 0}};
  if (poll(waiting, std::size(waiting), kLookEvery) <= 0) return false;
  bool any = false;
  if (waiting[0].revents) any |= append_from(output_end_, output_);
  if (waiting[1].revents) any |= append_from(errors_end_, errors_);
  return any;
}

}  // namespace launcher_e2e
