#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "host/springboard/processes/application_process.h"
#include "host/springboard/processes/player_desk.h"

namespace host::springboard {

/// The applications that run as separate processes. Those that misbehave are closed, with a log
/// line.
class RunningProcesses {
 public:
  using Process = std::shared_ptr<ApplicationProcess>;
  using Gone = std::function<void(const std::string& bundle)>;
  using FrameCame = std::function<void(const std::string& bundle)>;

  RunningProcesses();
  ~RunningProcesses();

  /// Returns the application's process and starts it if necessary; null when it has no program.
  Process open(const std::string& bundle, const std::string& program);
  /// Null when it does not run.
  Process find(const std::string& bundle) const;
  /// The same, by the name of the program.
  Process find_program(const std::string& program) const;
  /// Sets what the user sees from now on; an empty string for the home screen.
  void bring_to_front(const std::string& bundle);
  /// Call when the screen has got another number of pixels.
  void adopt_screen_density();
  /// Ends it without calling the `on_gone` function.
  void close(const std::string& bundle);

  /// Sets the function called when an application has ended by itself or had to be closed.
  void on_gone(Gone gone) { gone_ = std::move(gone); }
  void on_frame(FrameCame came) { frame_came_ = std::move(came); }

 private:
  struct Entry {
    std::string program;
    Process process;
  };

  ApplicationProcess::Events events_of(const std::string& bundle);
  void ended(const std::string& bundle, ProcessEnd reason);

  std::map<std::string, Entry> running_;
  std::string front_;
  Gone gone_;
  FrameCame frame_came_;
  PlayerDesk player_;
};

RunningProcesses& running_processes();

}  // namespace host::springboard
