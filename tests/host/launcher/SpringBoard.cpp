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
// `NAME PID`; its second selects its behaviour.

namespace {

std::string record_path;

int starts() {
  std::ifstream file(record_path);
  return static_cast<int>(std::count(std::istreambuf_iterator<char>(file), {}, '\n'));
}

void record(std::string_view line) {
  std::ofstream(record_path, std::ios::app) << line << '\n';
}

[[noreturn]] void wait_for_ever() {
  for (;;)
    pause();
}

/// Echoes each line of the console, except for `crash` and `quit`, which it executes.
int echo(int descriptor) {
  std::string line;
  for (char byte = 0; read(descriptor, &byte, 1) == 1;) {
    if (byte != '\n') {
      line += byte;
      continue;
    }
    if (line == "crash") abort();
    if (line == "killall") {
      static_cast<void>(!std::system("killall SpringBoard"));
      wait_for_ever();
    }
    const std::string answer = (line == "quit" ? "ok" : line) + "\n";
    send(descriptor, answer.data(), answer.size(), MSG_NOSIGNAL);
    if (line == "quit") return 0;
    line.clear();
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 3) return 1;
  record_path = arguments[1];
  const std::string_view behaviour = arguments[2];
  record(std::string(arguments[0]) + " " + std::to_string(getpid()));
  if (behaviour == "crash") abort();
  if (behaviour == "fail") return 7;
  if (behaviour == "cannot-start") return 2;
  if (behaviour == "crash-once" && starts() == 1) abort();
  if (behaviour == "killall-once" && starts() == 1) {
    static_cast<void>(!std::system("killall SpringBoard"));
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
  if (behaviour == "echo" && count == 5) return echo(std::atoi(arguments[4]));
  return 0;
}
