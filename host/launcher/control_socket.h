#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "host/basics/descriptor.h"
#include "host/launcher/control_request.h"

namespace host::launcher {

/// The environment's name of the socket.
inline constexpr const char* kControlSocketVariable = "SONAVUE_CONTROL_SOCKET";

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
  const std::filesystem::path& folder() const { return folder_; }

  /// Takes one waiting request and tells the asker what `serve` says of it: was it done?
  void serve(const std::function<bool(const ControlRequest&)>& serve) const;

 private:
  std::filesystem::path folder_;
  std::filesystem::path path_;
  Descriptor listener_;
};

/// Asks the supervisor at `path`. False when it could not do it, or nobody answered.
bool ask_supervisor(const std::filesystem::path& path, const ControlRequest& request);

}  // namespace host::launcher
