#pragma once

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <string>

#include "host/launcher/child_process.h"

namespace host::launcher {

/// The applications' processes. Each listens on a socket that has its bundle's name, which is there
/// before the process is, so that whoever opened it can connect at once. One that ends is just
/// gone; all of them end with this object.
class RunningApplications {
 public:
  struct Places {
    std::filesystem::path programs;  // the folder of all that can be opened
    std::filesystem::path sockets;   // a folder that only this user may enter
  };

  /// `common` is what all processes are started with; its program is not looked at.
  RunningApplications(Places places, ChildCommand common);
  ~RunningApplications();
  RunningApplications(const RunningApplications&) = delete;
  RunningApplications& operator=(const RunningApplications&) = delete;

  /// True when it runs, from now on or already. False when there is no such program.
  bool open(const std::string& bundle, const std::string& program);
  /// Ends it at once; true when it is not running any more.
  bool close(const std::string& bundle);
  /// Notices those that have ended.
  void reap();
  bool is_running(const std::string& bundle) const { return running_.contains(bundle); }
  /// 0 when it is not running.
  pid_t process(const std::string& bundle) const;

 private:
  std::filesystem::path socket_of(const std::string& bundle) const;
  void forget_socket(const std::string& bundle) const;

  Places places_;
  ChildCommand common_;
  std::map<std::string, pid_t> running_;
};

/// Where the application with this bundle listens, in the folder of sockets.
std::filesystem::path application_socket(const std::filesystem::path& folder,
                                         const std::string& bundle);

}  // namespace host::launcher
