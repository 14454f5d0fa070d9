#pragma once

#include <sys/types.h>

#include <optional>

#include "host/launcher/child_process.h"
#include "host/launcher/console_front.h"
#include "host/launcher/control_socket.h"
#include "host/launcher/restart_limit.h"
#include "host/launcher/running_applications.h"
#include "host/runtime/clock.h"

namespace host::launcher {

/// The status by which the home screen says that it cannot start at all, having said why.
inline constexpr int kCannotStart = 2;
/// The status of a supervisor that has given up.
inline constexpr int kGaveUp = 3;
/// The argument before the number of the console's descriptor.
inline constexpr const char* kConsoleArgument = "--console-descriptor";

/// Keeps one home screen running: starts it again when it ends unexpectedly or when somebody on the
/// device asks for it, and ends with it when it ends in good order. Applications are its children
/// too, so that they outlive a home screen.
class Supervisor {
 public:
  /// What the processes are started with: applications lie beside the home screen's program, which
  /// is the only one that is named.
  struct Commands {
    ChildCommand home_screen;
    ChildCommand applications;
  };

  /// `front` may be nullptr, then the process gets no console.
  Supervisor(Commands commands, const Clock& clock, ConsoleFront* front);

  /// Serves until the phone is off. Gives the status to end with: 0, the verdict of a script,
  /// `kCannotStart`, `kGaveUp`, or 128 and the number of the signal that ended it.
  int run();

 private:
  void start();
  void wait_for_something();
  void take_signal();
  bool serve(const ControlRequest& request);
  void reap();
  void child_ended(int status);
  void start_again();
  void ask_child_to_end(int signal);
  void end_impatiently();

  ControlSocket control_;
  ChildCommand command_;
  const Clock& clock_;
  ConsoleFront* front_;
  RunningApplications applications_;
  RestartLimit limit_;
  Descriptor signals_;
  Descriptor console_;
  pid_t child_ = 0;
  bool restart_asked_ = false;
  int ending_signal_ = 0;
  std::optional<double> patience_ends_;
  std::optional<int> status_;
};

}  // namespace host::launcher
