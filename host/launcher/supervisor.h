#pragma once

#include <sys/types.h>

#include <optional>

#include "host/launcher/browser_door.h"
#include "host/launcher/child_process.h"
#include "host/launcher/console_front.h"
#include "host/launcher/control_socket.h"
#include "host/launcher/heartbeat.h"
#include "host/launcher/life_signs.h"
#include "host/launcher/restart_limit.h"
#include "host/launcher/running_applications.h"
#include "host/runtime/clock.h"
#include "host/runtime/patience.h"

namespace host::launcher {

/// The exit status of a phone whose home screen cannot start at all and has logged the reason.
inline constexpr int kCannotStart = 2;
/// The exit status of a supervisor that has given up.
inline constexpr int kGaveUp = 3;
/// Precedes the number of the console's descriptor.
inline constexpr const char* kConsoleArgument = "--console-descriptor";

/// Keeps one home screen running: restarts it when it ends without saying why, no longer answers,
/// or when a process of the device requests it; ends when the home screen has been switched off.
/// One that keeps ending is started without extensions before the supervisor gives up: safe mode,
/// which lasts until a process of the device requests a restart. Applications are children of the
/// supervisor, too, so they outlive a home screen.
class Supervisor {
 public:
  /// The commands for starting the processes. Only the home screen's program is named; those of
  /// applications are in the same folder.
  struct Commands {
    ChildCommand home_screen;
    ChildCommand applications;
    bool has_window = false;
    BrowserDoor browser = {};  // closed unless the phone is shown in a browser
  };

  /// If `front` is nullptr, the process gets no console.
  Supervisor(Commands commands, const Clock& clock, ConsoleFront* front);

  /// Serves until the phone is off. Returns the exit status: 0, the verdict of a script,
  /// `kCannotStart`, `kGaveUp`, or 128 plus the number of the signal that ended it.
  int run();

  /// The path of the socket for requests.
  const std::filesystem::path& control_socket() const { return control_.path(); }

 private:
  void start();
  std::string name() const { return command_.program.filename(); }
  void wait_for_something();
  int longest_wait() const;
  bool has_output_left() const;
  void take_signal();
  bool serve(const ControlRequest& request);
  bool is_home_screen(const std::string& program) const;
  bool restart();
  void reap();
  void child_ended(int status);
  void start_again();
  void set_safe_mode(bool is_safe);
  void read_life_signs();
  void look_after_child();
  void say(Care care) const;
  void signal_child(int signal);
  void kill_overdue_child();

  ControlSocket control_;
  ChildCommand command_;
  const Clock& clock_;
  ConsoleFront* front_;
  const bool has_window_;
  const BrowserDoor browser_;
  RunningApplications applications_;
  RestartLimit limit_;
  Descriptor signals_;
  Descriptor console_;
  Descriptor lifeline_;
  Heartbeat heartbeat_{patience_scale()};
  std::optional<LifeSign> farewell_;
  std::optional<double> started_;  // when the loop began to turn
  double lived_ = 0;               // how long the loops of all home screens have turned
  bool is_safe_ = false;
  pid_t child_ = 0;
  bool restart_asked_ = false;
  int ending_signal_ = 0;
  std::optional<double> patience_ends_;
  std::optional<int> status_;
};

}  // namespace host::launcher
