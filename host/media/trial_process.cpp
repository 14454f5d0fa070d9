#include "host/media/trial_process.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace host::media {
namespace {

constexpr rlim_t most_computing_seconds = 3;
constexpr unsigned most_seconds = 5;

void limit_this_process() {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  // A death here is an answer, and not reported.
  for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGALRM, SIGXCPU})
    ::signal(signal, SIG_DFL);
  sigset_t none_blocked;
  ::sigemptyset(&none_blocked);
  ::sigprocmask(SIG_SETMASK, &none_blocked, nullptr);
  constexpr rlimit none{0, 0};
  ::setrlimit(RLIMIT_CORE, &none);
  constexpr rlimit computing{most_computing_seconds, most_computing_seconds};
  ::setrlimit(RLIMIT_CPU, &computing);
  ::alarm(most_seconds);
}

}  // namespace

bool process_survives(const std::function<void()>& work) {
  const pid_t child = ::fork();
  if (child == 0) {
    limit_this_process();
    work();
    ::_exit(0);
  }
  int status = 0;
  while (child > 0 && ::waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return true;
  }
  const bool waited_too_long = WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM;
  return child < 0 || waited_too_long || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

}  // namespace host::media
