#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "host/launcher/descriptor.h"

namespace host::launcher {

/// The environment's name of the socket, and the one request that is made through it.
inline constexpr const char* kControlSocketVariable = "SONAVUE_CONTROL_SOCKET";
inline constexpr const char* kRestartRequest = "restart SpringBoard\n";

/// Where the processes of one device reach their supervisor: a socket in a folder of its own that
/// nobody else may enter. Both are removed at the end.
class ControlSocket {
 public:
  ControlSocket();
  ~ControlSocket();
  ControlSocket(const ControlSocket&) = delete;
  ControlSocket& operator=(const ControlSocket&) = delete;

  explicit operator bool() const { return static_cast<bool>(listener_); }
  int descriptor() const { return listener_.get(); }
  const std::filesystem::path& path() const { return path_; }

  /// Takes one waiting request. True when a restart was asked for; the asker is told so.
  bool take_restart_request();

 private:
  std::filesystem::path folder_;
  std::filesystem::path path_;
  Descriptor listener_;
};

/// Asks the supervisor at `path` to restart its home screen. False when nobody answered.
bool ask_for_restart(const std::filesystem::path& path);

}  // namespace host::launcher
