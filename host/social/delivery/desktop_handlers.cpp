#include "host/social/delivery/desktop_handlers.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "host/runtime/log.h"

namespace host::social {
namespace {

constexpr const char* kRegistry = "xdg-mime";
/// In milliseconds; short, since the user is waiting for the answer.
constexpr int kPatience = 2000;

/// The read end of a pipe.
class Answer {
 public:
  Answer() {
    if (pipe2(ends_.data(), O_CLOEXEC) != 0) ends_ = {-1, -1};
  }
  ~Answer() {
    for (const int end : ends_)
      if (end >= 0) close(end);
  }
  Answer(const Answer&) = delete;
  Answer& operator=(const Answer&) = delete;

  int writing_end() const { return ends_[1]; }
  void leave_writing_to_others() {
    close(ends_[1]);
    ends_[1] = -1;
  }
  /// Returns whether anything but blanks arrives before the end of the stream or the time-out.
  /// Blanks without an end are no answer.
  bool says_something() const {
    constexpr int kMostReads = 16;
    std::array<char, 256> bytes{};
    pollfd waiting{ends_[0], POLLIN, 0};
    for (int reads = 0; reads < kMostReads && poll(&waiting, 1, kPatience) > 0; ++reads) {
      const ssize_t count = read(ends_[0], bytes.data(), bytes.size());
      if (count <= 0) return false;
      for (ssize_t index = 0; index < count; ++index)
        if (bytes[static_cast<std::size_t>(index)] > ' ') return true;
    }
    return false;
  }

 private:
  std::array<int, 2> ends_{-1, -1};
};

pid_t start(const std::string& kind, const Answer& answer) {
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&files, answer.writing_end(), STDOUT_FILENO);
  posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addclosefrom_np(&files, STDERR_FILENO + 1);
  std::array<std::string, 4> words{kRegistry, "query", "default", kind};
  char* const arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(),
                             nullptr};
  pid_t process = 0;
  const int problem = posix_spawnp(&process, kRegistry, &files, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&files);
  if (problem) spdlog::info("{}: {}", kRegistry, std::strerror(problem));
  return problem ? 0 : process;
}

}  // namespace

bool desktop_handles(const std::string& scheme) {
  Answer answer;
  if (answer.writing_end() < 0) return false;
  const pid_t process = start("x-scheme-handler/" + scheme, answer);
  if (!process) return false;
  answer.leave_writing_to_others();
  const bool handled = answer.says_something();
  // Its output is no longer needed, and a hanging process must not remain.
  kill(process, SIGKILL);
  while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
  }
  return handled;
}

}  // namespace host::social
