#include "host/social/delivery/desktop_opener.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>

#include "host/runtime/log.h"
#include "host/runtime/run_loop.h"

namespace host::social {
namespace {

constexpr const char* kOpener = "xdg-open";

bool is_set(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

/// A process that inherits nothing of ours: no descriptors, no signal settings, not our session.
class DetachedProcess {
 public:
  DetachedProcess() {
    posix_spawn_file_actions_init(&files_);
    posix_spawn_file_actions_addopen(&files_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&files_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&files_, STDERR_FILENO + 1);
    posix_spawnattr_init(&attributes_);
    sigset_t signals;
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes_, &signals);
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes_, &signals);
    posix_spawnattr_setflags(&attributes_,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
  }
  ~DetachedProcess() {
    posix_spawn_file_actions_destroy(&files_);
    posix_spawnattr_destroy(&attributes_);
  }
  DetachedProcess(const DetachedProcess&) = delete;
  DetachedProcess& operator=(const DetachedProcess&) = delete;

  /// Returns 0, or the error number when it could not be started.
  int start(const char* program, std::string argument, pid_t& process) const {
    std::string name = program;
    char* const arguments[] = {name.data(), argument.data(), nullptr};
    return posix_spawnp(&process, program, &files_, &attributes_, arguments, environ);
  }

 private:
  posix_spawn_file_actions_t files_;
  posix_spawnattr_t attributes_;
};

/// Reaps the process when it ends, and calls `on_failure` if it failed.
void await_end(pid_t process, std::function<void()> on_failure) {
  const int descriptor = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
  if (descriptor < 0) return;
  const auto watch = std::make_shared<RunLoop::Id>();
  *watch = RunLoop::main().watch(
      descriptor, [process, descriptor, watch, on_failure = std::move(on_failure)] {
        int status = 0;
        if (waitpid(process, &status, WNOHANG) != process) return;
        const auto failed = on_failure;
        RunLoop& loop = RunLoop::main();
        close(descriptor);
        loop.unwatch(*watch);
        if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return;
        spdlog::warn("{} could not open an address (status {})", kOpener,
                     WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status));
        if (failed) failed();
      });
}

}  // namespace

Desktop desktop_of_environment() {
  return is_set("DISPLAY") || is_set("WAYLAND_DISPLAY") ? Desktop::Present : Desktop::Absent;
}

std::optional<std::string> open_on_desktop(const std::string& address,
                                           std::function<void()> on_failure) {
  pid_t process = 0;
  const int problem = DetachedProcess().start(kOpener, address, process);
  if (problem) return std::string(kOpener) + ": " + std::strerror(problem);
  await_end(process, std::move(on_failure));
  return std::nullopt;
}

}  // namespace host::social
