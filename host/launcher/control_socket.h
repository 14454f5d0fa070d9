#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "host/basics/descriptor.h"
#include "host/launcher/control_request.h"
#include "host/launcher/throwaway_folder.h"

namespace host::launcher {

/// The environment variable with the socket's path.
inline constexpr const char* kControlSocketVariable = "SONAVUE_CONTROL_SOCKET";

/// The socket on which the application with this bundle listens. Names of sockets are short, so
/// that the folder's can be long.
std::filesystem::path application_socket(const std::filesystem::path& folder,
                                         const std::string& bundle);

/// The socket through which the processes of one device reach their supervisor, in a separate
/// folder that only this user may enter, and whose name is short enough for the applications'
/// sockets.
class ControlSocket {
 public:
  ControlSocket();
  ControlSocket(const ControlSocket&) = delete;
  ControlSocket& operator=(const ControlSocket&) = delete;

  explicit operator bool() const { return static_cast<bool>(listener_); }
  int descriptor() const { return listener_.get(); }
  const std::filesystem::path& path() const { return path_; }
  const std::filesystem::path& folder() const { return folder_.path(); }

  /// Reads one pending request, calls `serve`, and replies with its result: whether it was done.
  void serve(const std::function<bool(const ControlRequest&)>& serve) const;

 private:
  ThrowawayFolder folder_;
  std::filesystem::path path_;
  Descriptor listener_;
};

/// Sends a request to the supervisor at `path`. Returns false when it was not done or not answered.
bool ask_supervisor(const std::filesystem::path& path, const ControlRequest& request);

}  // namespace host::launcher
