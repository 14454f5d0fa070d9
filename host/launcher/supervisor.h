#pragma once

#include <sys/types.h>

#include <optional>

#include "host/launcher/child_process.h"
#include "host/launcher/console_front.h"
#include "host/launcher/control_socket.h"
#include "host/launcher/restart_limit.h"
#include "host/runtime/clock.h"

namespace host::launcher {

/// The status by which the home screen says that it cannot start at all, having said why.
inline constexpr int kCannotStart = 2;
/// The status of a supervisor that has given up.
inline constexpr int kGaveUp = 3;
/// The argument before the number of the console's descriptor.
inline constexpr const char* kConsoleArgument = "--console-descriptor";

/// Keeps one home screen running: starts it again when it ends unexpectedly or when somebody on the
/// device asks for it, and ends with it when it ends in good order.
class Supervisor {
 public:
  /// `front` may be nullptr, then the process gets no console.
  Supervisor(ChildCommand command, const Clock& clock, ConsoleFront* front);

  /// Serves until the phone is off. Gives the status to end with: 0, the verdict of a script,
  /// `kCannotStart`, `kGaveUp`, or 128 and the number of the signal that ended it.
  int run();

 private:
  void start();
  void wait_for_something();
  void take_signal();
  void reap();
  void child_ended(int status);
  void start_again();
  void ask_child_to_end(int signal);
  void end_impatiently();

  ChildCommand command_;
  const Clock& clock_;
  ConsoleFront* front_;
  ControlSocket control_;
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
