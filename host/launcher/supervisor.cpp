#include "host/launcher/supervisor.h"

#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include "host/runtime/log.h"

namespace host::launcher {
namespace {

// How long a process may take to exit by itself, in seconds.
constexpr double kPatience = 2.0;
constexpr int kWakeWhileImpatient = 50;  // milliseconds

/// Blocks the signals that are read from a descriptor, and unblocks them at the end.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigemptyset(&signals_);
    for (const int signal : {SIGCHLD, SIGINT, SIGTERM, SIGHUP, SIGQUIT})
      sigaddset(&signals_, signal);
    sigprocmask(SIG_BLOCK, &signals_, &before_);
  }
  ~BlockedSignals() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;

  Descriptor descriptor() const { return Descriptor(signalfd(-1, &signals_, SFD_CLOEXEC)); }

 private:
  sigset_t signals_;
  sigset_t before_;
};

std::string how_it_ended(int status) {
  if (WIFSIGNALED(status)) return fmt::format("ended by signal {}", WTERMSIG(status));
  return fmt::format("ended with status {}", WEXITSTATUS(status));
}

/// Adds the control socket's path to the command's environment.
ChildCommand with_control_socket(ChildCommand command, const ControlSocket& control) {
  if (control) command.environment.emplace_back(kControlSocketVariable, control.path());
  return command;
}

}  // namespace

Supervisor::Supervisor(Commands commands, const Clock& clock, ConsoleFront* front)
    : command_(with_control_socket(std::move(commands.home_screen), control_)),
      clock_(clock),
      front_(front),
      applications_({command_.program.parent_path(), control_.folder()},
                    with_control_socket(std::move(commands.applications), control_)) {}

int Supervisor::run() {
  const BlockedSignals blocked;
  signals_ = blocked.descriptor();
  if (!control_) spdlog::warn("no socket could be made: `killall SpringBoard` will have no effect");
  start();
  while (!status_)
    wait_for_something();
  return *status_;
}

void Supervisor::start() {
  ChildCommand command = command_;
  Descriptor theirs;
  int pair[2];
  if (front_ && socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair) == 0) {
    console_ = Descriptor(pair[0]);
    theirs = Descriptor(pair[1]);
    command.arguments.push_back(kConsoleArgument);
    command.arguments.push_back(std::to_string(theirs.get()));
  }
  const auto child = start_child(command, theirs.get());
  if (!child) {
    spdlog::error("{} cannot be started", command_.program.filename().string());
    status_ = kGaveUp;
    return;
  }
  child_ = *child;
  restart_asked_ = false;
  patience_ends_.reset();
  if (console_) front_->attach(console_.get());
}

void Supervisor::wait_for_something() {
  // poll ignores negative descriptors.
  pollfd waiting[] = {
      {signals_.get(), POLLIN, 0},
      {control_.descriptor(), POLLIN, 0},
      {front_ ? front_->awaited_answer() : -1, POLLIN, 0},
      {front_ ? front_->awaited_input() : -1, POLLIN, 0},
  };
  poll(waiting, std::size(waiting), patience_ends_ ? kWakeWhileImpatient : -1);
  // Answers first: the last one may still be unread although its process is gone.
  if (waiting[2].revents) front_->read_answer();
  if (waiting[0].revents) take_signal();
  if (waiting[1].revents) control_.serve([this](const auto& request) { return serve(request); });
  if (waiting[3].revents && !status_) front_->read_input();
  if (front_ && front_->verdict() && child_ && !patience_ends_) signal_child(SIGTERM);
  kill_overdue_child();
}

bool Supervisor::serve(const ControlRequest& request) {
  switch (request.kind) {
    case ControlRequest::Kind::Open:
      return !ending_signal_ && applications_.open(request.bundle, request.program);
    case ControlRequest::Kind::Close:
      return applications_.close(request.bundle);
    case ControlRequest::Kind::Kill:
      return is_home_screen(request.program) ? restart() : applications_.kill(request.program);
    case ControlRequest::Kind::Find:
      return is_home_screen(request.program) || applications_.is_program_running(request.program);
    case ControlRequest::Kind::Show:
      break;
  }
  return false;
}

bool Supervisor::is_home_screen(const std::string& program) const {
  return child_ != 0 && command_.program.filename() == program;
}

bool Supervisor::restart() {
  if (ending_signal_) return false;
  restart_asked_ = true;
  signal_child(SIGTERM);
  return true;
}

void Supervisor::take_signal() {
  signalfd_siginfo info;
  if (read(signals_.get(), &info, sizeof info) != sizeof info) return;
  const int signal = static_cast<int>(info.ssi_signo);
  if (signal == SIGCHLD) {
    reap();
    return;
  }
  ending_signal_ = signal;
  signal_child(signal);
}

void Supervisor::reap() {
  applications_.reap();
  int status = 0;
  if (child_ == 0 || waitpid(child_, &status, WNOHANG) != child_) return;
  child_ = 0;
  if (front_) {
    while (console_ && front_->awaited_answer() >= 0)
      front_->read_answer();
    front_->detach(restart_asked_ ? ConsoleFront::Departure::Asked
                                  : ConsoleFront::Departure::Unexpected);
  }
  console_.reset();
  child_ended(status);
}

void Supervisor::child_ended(int status) {
  const bool exited = WIFEXITED(status);
  if (ending_signal_) {
    status_ = 128 + ending_signal_;
  } else if (front_ && front_->verdict()) {
    status_ = front_->verdict();
  } else if (restart_asked_) {
    start_again();
  } else if (exited && WEXITSTATUS(status) == 0) {
    status_ = 0;
  } else if (exited && WEXITSTATUS(status) == kCannotStart) {
    status_ = kCannotStart;
  } else {
    spdlog::warn("{} {}", command_.program.filename().string(), how_it_ended(status));
    start_again();
  }
}

void Supervisor::start_again() {
  if (limit_.allow(clock_.now())) {
    start();
    return;
  }
  spdlog::error("{} ended more than {} times within a minute: the phone stays off",
                command_.program.filename().string(), RestartLimit::kMostRestarts);
  status_ = kGaveUp;
}

void Supervisor::signal_child(int signal) {
  if (child_ == 0) return;
  kill(child_, signal);
  patience_ends_ = clock_.now() + kPatience;
}

void Supervisor::kill_overdue_child() {
  if (!patience_ends_ || child_ == 0 || clock_.now() < *patience_ends_) return;
  kill(child_, SIGKILL);
}

}  // namespace host::launcher
