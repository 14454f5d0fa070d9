#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "host/springboard/processes/application_process.h"
#include "host/springboard/processes/player_desk.h"

namespace host::springboard {

/// The applications that run as processes of their own. Those that misbehave are closed, with a
/// line in the log.
class RunningProcesses {
 public:
  using Process = std::shared_ptr<ApplicationProcess>;
  using Gone = std::function<void(const std::string& bundle)>;
  using FrameCame = std::function<void(const std::string& bundle)>;

  RunningProcesses();
  ~RunningProcesses();

  /// The application's process, started if need be; null when it has no program.
  Process open(const std::string& bundle, const std::string& program);
  /// Null when it does not run.
  Process find(const std::string& bundle) const;
  /// The same by the program's name.
  Process find_program(const std::string& program) const;
  /// What the user sees from now on; empty for the home screen.
  void bring_to_front(const std::string& bundle);
  /// Ends it; nobody is told that it is gone.
  void close(const std::string& bundle);

  /// One has ended by itself, or had to be closed.
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
