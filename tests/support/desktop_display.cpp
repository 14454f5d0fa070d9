#include "tests/support/desktop_display.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace launcher_e2e {
namespace {

constexpr int kLooks = 600;
constexpr int kBetweenLooks = 50'000;  // microseconds

/// Starts a program without its output, which goes to `output` if that is a descriptor.
pid_t start(std::vector<std::string> arguments, int output = -1, int input = -1) {
  std::vector<char*> pointers;
  for (std::string& text : arguments)
    pointers.push_back(text.data());
  pointers.push_back(nullptr);
  const pid_t started = fork();
  if (started < 0) throw std::runtime_error{"no process"};
  if (started > 0) return started;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int nothing = open("/dev/null", O_RDWR);
  dup2(input >= 0 ? input : nothing, STDIN_FILENO);
  dup2(output >= 0 ? output : nothing, STDOUT_FILENO);
  dup2(nothing, STDERR_FILENO);
  execvp(pointers[0], pointers.data());
  _exit(127);
}

void end(pid_t process) {
  if (process <= 0) return;
  kill(process, SIGTERM);
  waitpid(process, nullptr, 0);
}

struct Pipe {
  Pipe() {
    int made[2];
    if (pipe2(made, O_CLOEXEC) != 0) throw std::runtime_error{"no pipe"};
    reading = made[0];
    writing = made[1];
  }
  ~Pipe() {
    close(reading);
    if (writing >= 0) close(writing);
  }
  void end_writing() { close(std::exchange(writing, -1)); }
  std::string line() const {
    std::string text;
    for (char byte; read(reading, &byte, 1) == 1 && byte != '\n';)
      text += byte;
    return text;
  }
  std::string rest() const {
    std::string text;
    char bytes[512];
    for (ssize_t count; (count = read(reading, bytes, sizeof bytes)) > 0;)
      text.append(bytes, static_cast<std::size_t>(count));
    return text;
  }
  int reading;
  int writing;
};

/// What the program prints, once it has ended.
std::string printed_by(const std::vector<std::string>& arguments) {
  Pipe output;
  const pid_t started = start(arguments, output.writing);
  output.end_writing();
  std::string text = output.rest();
  waitpid(started, nullptr, 0);
  return text;
}

}  // namespace

DesktopDisplay::DesktopDisplay(const std::string& resources) {
  Pipe number;
  fcntl(number.writing, F_SETFD, 0);  // the server inherits it
  server_ = start({"Xvfb", "-displayfd", std::to_string(number.writing), "-screen", "0",
                   "1600x1300x24", "-noreset", "-nolisten", "tcp"});
  number.end_writing();
  const std::string name = number.line();
  if (name.empty()) throw std::runtime_error{"Xvfb has no display"};
  setenv("DISPLAY", (":" + name).c_str(), 1);
  setenv("SDL_VIDEODRIVER", "x11", 1);
  if (!resources.empty()) {
    Pipe contents;
    const pid_t merge = start({"xrdb", "-nocpp", "-merge"}, -1, contents.reading);
    static_cast<void>(!write(contents.writing, resources.data(), resources.size()));
    contents.end_writing();
    waitpid(merge, nullptr, 0);
  }
  // A window that appears while the manager takes the screen over may be shown by neither.
  const std::string ready = (std::filesystem::temp_directory_path() /
                             ("openbox-" + name + "-" + std::to_string(getpid())))
                                .string();
  manager_ = start({"openbox", "--startup", "touch " + ready});
  for (int look = 0; look < kLooks && unlink(ready.c_str()) != 0; ++look)
    usleep(kBetweenLooks);
}

DesktopDisplay::~DesktopDisplay() {
  end(manager_);
  end(server_);
  unsetenv("DISPLAY");
  unsetenv("SDL_VIDEODRIVER");
}

std::string DesktopDisplay::user(const std::vector<std::string>& arguments) const {
  std::vector<std::string> all = {"xdotool"};
  all.insert(all.end(), arguments.begin(), arguments.end());
  return printed_by(all);
}

bool DesktopDisplay::has_window(const std::string& name) {
  for (int look = 0; look < kLooks; ++look) {
    std::istringstream found(user({"search", "--onlyvisible", "--class", "^" + name + "$"}));
    if (found >> window_) {
      user({"windowactivate", "--sync", window_});
      return true;
    }
    usleep(kBetweenLooks);
  }
  return false;
}

DesktopDisplay::Frame DesktopDisplay::frame() const {
  std::istringstream lines(user({"getwindowgeometry", "--shell", window_}));
  Frame frame;
  for (std::string line; std::getline(lines, line);) {
    const auto equals = line.find('=');
    if (equals == line.npos) continue;
    const std::string name = line.substr(0, equals);
    const int number = std::atoi(line.c_str() + equals + 1);
    if (name == "X") frame.x = number;
    if (name == "Y") frame.y = number;
    if (name == "WIDTH") frame.width = number;
    if (name == "HEIGHT") frame.height = number;
  }
  return frame;
}

void DesktopDisplay::resize(int width, int height) const {
  user({"windowsize", window_, std::to_string(width), std::to_string(height)});
}

void DesktopDisplay::close_window() const {
  press("alt+F4");
}

void DesktopDisplay::point_at(double across, double down) const {
  const Frame now = frame();
  user({"mousemove", std::to_string(now.x + static_cast<int>(across * now.width)),
        std::to_string(now.y + static_cast<int>(down * now.height))});
}

void DesktopDisplay::click(int button) const {
  user({"click", std::to_string(button)});
}

void DesktopDisplay::hold(int button) const {
  user({"mousedown", std::to_string(button)});
}

void DesktopDisplay::let_go(int button) const {
  user({"mouseup", std::to_string(button)});
}

void DesktopDisplay::press(const std::string& keys) const {
  user({"key", keys});
}

}  // namespace launcher_e2e
