#include "host/launcher/supervisor.h"

#include <poll.h>
#include <signal.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>

#include "host/application/wire/process_arguments.h"
#include "host/launcher/log_file.h"
#include "host/runtime/log.h"

namespace host::launcher {
namespace {

// How long a process may take to exit by itself, in seconds.
constexpr double kPatience = 2.0;
// A process that is stuck may take less time to say where.
constexpr double kPatienceWithHung = 0.5;
constexpr int kWakeWhileImpatient = 50;  // milliseconds

/// Blocks the signals that are read from a descriptor, and unblocks them at the end.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigemptyset(&signals_);
    for (const int number : {SIGCHLD, SIGINT, SIGTERM, SIGHUP, SIGQUIT})
      sigaddset(&signals_, number);
    sigprocmask(SIG_BLOCK, &signals_, &before_);
    // A process that ignores it never learns of a child's end, and other programs hand that on.
    signal(SIGCHLD, SIG_DFL);
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
  return fmt::format("ended with status {}, although no one switched the phone off",
                     WEXITSTATUS(status));
}

void pass_on(const char* argument, const Descriptor& descriptor, ChildCommand& command) {
  if (!descriptor) return;
  command.arguments.emplace_back(argument);
  command.arguments.push_back(std::to_string(descriptor.get()));
}

/// Makes a connection to a child. The child gets `theirs`, whose number follows `argument`.
void connect(const char* argument, ChildCommand& command, Descriptor& ours, Descriptor& theirs) {
  int pair[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair) != 0) return;
  ours = Descriptor(pair[0]);
  theirs = Descriptor(pair[1]);
  pass_on(argument, theirs, command);
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
      has_window_(commands.has_window),
      browser_(std::move(commands.browser)),
      applications_({command_.program.parent_path(), control_.folder()},
                    with_control_socket(std::move(commands.applications), control_)) {}

int Supervisor::run() {
  const BlockedSignals blocked;
  signals_ = blocked.descriptor();
  if (!control_) spdlog::warn("no socket could be made: `killall SpringBoard` will have no effect");
  start();
  while (!status_ || has_output_left())
    wait_for_something();
  return *status_;
}

void Supervisor::start() {
  ChildCommand command = command_;
  Descriptor console;
  Descriptor lifeline;
  if (front_) connect(kConsoleArgument, command, console_, console);
  connect(kLifelineArgument, command, lifeline_, lifeline);
  pass_on(kBrowserArgument, browser_.listener, command);
  pass_on(kAccessArgument, browser_.access, command);
  if (is_safe_) command.arguments.emplace_back(application::kSafeModeArgument);
  const auto child = start_child(
      command,
      std::array{console.get(), lifeline.get(), browser_.listener.get(), browser_.access.get()});
  if (!child) {
    spdlog::error("{} cannot be started: {}", name(),
                  std::error_code(errno, std::generic_category()).message());
    status_ = kGaveUp;
    return;
  }
  child_ = *child;
  restart_asked_ = false;
  farewell_.reset();
  heartbeat_.stop();
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
      {lifeline_.get(), POLLIN, 0},
      {front_ ? front_->awaited_process() : -1, POLLOUT, 0},
      {front_ ? front_->awaited_output() : -1, POLLOUT, 0},
  };
  poll(waiting, std::size(waiting), longest_wait());
  // Answers first: the last one may still be unread although its process is gone.
  if (waiting[2].revents) front_->read_answer();
  if (waiting[4].revents) read_life_signs();
  if (waiting[5].revents && front_->awaited_process() >= 0) front_->send_more();
  if (waiting[6].revents) front_->write_more();
  if (waiting[0].revents) take_signal();
  if (waiting[1].revents) control_.serve([this](const auto& request) { return serve(request); });
  if (waiting[3].revents && !status_) front_->read_input();
  if (front_ && front_->verdict() && child_ && !patience_ends_) signal_child(SIGTERM);
  look_after_child();
  kill_overdue_child();
  keep_log_bounded();
}

/// After a signal, unread answers are lost.
bool Supervisor::has_output_left() const {
  return front_ && front_->awaited_output() >= 0 && !ending_signal_;
}

int Supervisor::longest_wait() const {
  if (patience_ends_) return kWakeWhileImpatient;
  if (!heartbeat_.is_beating()) return -1;
  return std::max(1, static_cast<int>(heartbeat_.longest_pause() * 1e3));
}

void Supervisor::read_life_signs() {
  for (char sign = 0;;) {
    const auto count = recv(lifeline_.get(), &sign, 1, MSG_DONTWAIT);
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) return;
    if (count <= 0) return lifeline_.reset();
    if (sign == static_cast<char>(LifeSign::Started)) {
      started_ = clock_.now();
    } else if (sign == static_cast<char>(LifeSign::Alive)) {
      heartbeat_.answered(clock_.now());
    } else {
      farewell_ = static_cast<LifeSign>(sign);
      heartbeat_.stop();
      if (heartbeat_.patience() > 0) patience_ends_ = clock_.now() + heartbeat_.patience();
    }
  }
}

void Supervisor::say(Care care) const {
  const char sign = static_cast<char>(care);
  // A process that leaves so much unread that this does not fit does not answer either.
  if (lifeline_) static_cast<void>(!send(lifeline_.get(), &sign, 1, MSG_NOSIGNAL | MSG_DONTWAIT));
}

void Supervisor::look_after_child() {
  if (child_ == 0 || patience_ends_) return;
  const auto finding = heartbeat_.look(clock_.now());
  if (finding == Heartbeat::Finding::ShouldAsk) say(Care::Question);
  if (finding != Heartbeat::Finding::IsHung) return;
  if (is_traced(child_)) return heartbeat_.answered(clock_.now());
  spdlog::error("{} has not answered for {} seconds: it is started again ({}=0 waits for ever)",
                name(), heartbeat_.patience(), kPatienceVariable);
  // With this signal it can still say whose code is running.
  signal_child(SIGABRT);
  patience_ends_ = clock_.now() + kPatienceWithHung;
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
      if ((!has_window_ && !browser_) || child_ == 0) return false;
      say(Care::ShowWindow);
      return true;
    case ControlRequest::Kind::Play:
      // A home screen that is about to start looks for them itself.
      if (status_ || ending_signal_) return false;
      say(Care::PlayFiles);
      return true;
  }
  return false;
}

bool Supervisor::is_home_screen(const std::string& program) const {
  return child_ != 0 && name() == program;
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
  if (lifeline_) read_life_signs();
  lifeline_.reset();
  if (front_) {
    while (front_->awaited_answer() >= 0 && front_->read_answer()) {
    }
    front_->detach(restart_asked_ ? ConsoleFront::Departure::Asked
                                  : ConsoleFront::Departure::Unexpected);
  }
  console_.reset();
  child_ended(status);
}

void Supervisor::child_ended(int status) {
  if (started_) lived_ += clock_.now() - *started_;
  started_.reset();
  if (ending_signal_) {
    status_ = 128 + ending_signal_;
  } else if (front_ && front_->verdict()) {
    status_ = front_->verdict();
  } else if (farewell_ == LifeSign::SwitchedOff) {
    status_ = 0;
  } else if (farewell_ == LifeSign::CannotStart) {
    status_ = kCannotStart;
  } else if (restart_asked_ && is_safe_) {
    set_safe_mode(false);
    start();
  } else {
    if (!restart_asked_) spdlog::warn("{} {}", name(), how_it_ended(status));
    start_again();
  }
}

void Supervisor::start_again() {
  if (limit_.allow(lived_)) {
    start();
  } else if (!is_safe_) {
    spdlog::error("{} ended more than {} times within a minute: it is started without extensions",
                  name(), RestartLimit::kMostRestarts);
    set_safe_mode(true);
    start();
  } else {
    spdlog::error(
        "{} ended more than {} times within a minute, even without extensions: the phone stays off",
        name(), RestartLimit::kMostRestarts);
    status_ = kGaveUp;
  }
}

void Supervisor::set_safe_mode(bool is_safe) {
  is_safe_ = is_safe;
  applications_.set_safe(is_safe);
  limit_ = {};
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
