#pragma once

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <string>

#include "host/launcher/child_process.h"

namespace host::launcher {

/// The applications' processes. Each listens on a socket of its own, which exists
/// before the process starts, so the caller can connect at once. An application that ends is not
/// restarted; the destructor ends all of them.
class RunningApplications {
 public:
  struct Places {
    std::filesystem::path programs;  // the folder of the applications' programs
    std::filesystem::path sockets;   // a folder that only this user may enter
  };

  /// `common` has the arguments and environment of all processes; its program is ignored.
  RunningApplications(Places places, ChildCommand common);
  ~RunningApplications();
  RunningApplications(const RunningApplications&) = delete;
  RunningApplications& operator=(const RunningApplications&) = delete;

  /// Returns true if the application is running now, newly started or not. Otherwise the log says
  /// why it could not be started.
  bool open(const std::string& bundle, const std::string& program);
  /// Whether applications started from now on load extensions.
  void set_safe(bool is_safe) { is_safe_ = is_safe; }
  /// Kills the application; returns true when it is no longer running.
  bool close(const std::string& bundle);
  /// Kills the applications with this program; returns false when none is running.
  bool kill(const std::string& program);
  /// Forgets the applications that have ended.
  void reap();
  bool is_running(const std::string& bundle) const { return running_.contains(bundle); }
  bool is_program_running(const std::string& program) const;
  /// 0 when it is not running.
  pid_t process(const std::string& bundle) const;

 private:
  struct Running {
    pid_t process;
    std::string program;
  };

  std::filesystem::path socket_of(const std::string& bundle) const;
  void forget_socket(const std::string& bundle) const;

  Places places_;
  ChildCommand common_;
  std::map<std::string, Running> running_;
  bool is_safe_ = false;
};

}  // namespace host::launcher
