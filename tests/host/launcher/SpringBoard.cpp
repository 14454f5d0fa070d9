#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

// A minimal home screen. Its first argument names a file to which every start appends one line,
// `NAME PID`, with ` safe` in safe mode; its second selects its behaviour.

namespace {

std::string record_path;

int starts() {
  std::ifstream file(record_path);
  return static_cast<int>(std::count(std::istreambuf_iterator<char>(file), {}, '\n'));
}

void record(std::string_view line) {
  std::ofstream(record_path, std::ios::app) << line << '\n';
}

int count;
char** arguments;

bool is_given(std::string_view option) {
  return std::find(arguments, arguments + count, option) != arguments + count;
}

/// The number after an option; -1 without one.
int number_after(std::string_view option) {
  char** found = std::find(arguments, arguments + count, option);
  return found + 1 < arguments + count ? std::atoi(found[1]) : -1;
}

/// Says one byte to the supervisor.
void say(char sign) {
  send(number_after("--lifeline-descriptor"), &sign, 1, MSG_NOSIGNAL);
}

int switched_off() {
  say('o');
  return 0;
}

/// Answers the supervisor's questions, as many as are given, then no more.
void answer(int questions) {
  say('a');
  for (char question = 0; questions > 0; --questions) {
    if (recv(number_after("--lifeline-descriptor"), &question, 1, 0) != 1) return;
    if (question == '?') say('a');
  }
}

[[noreturn]] void wait_for_ever() {
  for (;;)
    pause();
}

/// Echoes each line of the console, except for `crash` and `quit`, which it executes, and `list`,
/// whose answer has several lines.
int echo(int descriptor) {
  std::string line;
  for (char byte = 0; read(descriptor, &byte, 1) == 1;) {
    if (byte != '\n') {
      line += byte;
      continue;
    }
    if (line == "crash") abort();
    if (line == "terminate") kill(getppid(), SIGTERM);
    if (line == "killall") {
      static_cast<void>(!std::system("killall SpringBoard"));
      wait_for_ever();
    }
    std::string answer = (line == "quit" ? "ok" : line) + "\n";
    if (line == "list") answer = "  one\n    two\nok\n";
    send(descriptor, answer.data(), answer.size(), MSG_NOSIGNAL);
    if (line == "quit") return switched_off();
    line.clear();
  }
  return switched_off();
}

}  // namespace

int main(int argument_count, char** argument_values) {
  count = argument_count;
  arguments = argument_values;
  if (count < 3) return 1;
  record_path = arguments[1];
  const std::string_view behaviour = arguments[2];
  const bool is_safe = is_given("--safe-mode");
  record(std::string(arguments[0]) + " " + std::to_string(getpid()) + (is_safe ? " safe" : ""));
  if (behaviour == "crash") abort();
  if (behaviour == "fail") return 7;
  if (behaviour == "crash-in-later-life") {
    say('s');
    if (starts() <= 10) abort();
  }
  if (behaviour == "exit" && !is_safe) return 0;
  if (behaviour == "fail-as-if-unable" && !is_safe) return 2;
  if (behaviour == "crash-unless-safe" && !is_safe) abort();
  if (behaviour == "cannot-start") {
    say('c');
    return 2;
  }
  if (behaviour == "restart-when-safe") {
    if (starts() <= 6) abort();
    if (!is_safe) return switched_off();
    static_cast<void>(!std::system("killall SpringBoard"));
    wait_for_ever();
  }
  if (behaviour == "hang-once" && starts() == 1) {
    answer(2);
    wait_for_ever();
  }
  if (behaviour == "show-itself") {
    char care = 0;
    static_cast<void>(recv(number_after("--lifeline-descriptor"), &care, 1, 0));
    record(std::string("told ") + care);
    return switched_off();
  }
  if (behaviour == "crash-once" && starts() == 1) abort();
  if (behaviour == "killall-once" && starts() == 1) {
    static_cast<void>(!std::system("killall SpringBoard"));
    wait_for_ever();
  }
  if (behaviour == "deaf") {
    usleep(100'000);
    kill(getppid(), SIGTERM);
    wait_for_ever();
  }
  if (behaviour == "terminate-supervisor") {
    signal(SIGTERM, [](int) {
      record("terminated");
      _exit(0);
    });
    kill(getppid(), SIGTERM);
    wait_for_ever();
  }
  if (behaviour == "wait") wait_for_ever();
  if (behaviour == "echo") return echo(number_after("--console-descriptor"));
  return switched_off();
}
