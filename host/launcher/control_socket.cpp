#include "host/launcher/control_socket.h"

#include <poll.h>
#include <sys/socket.h>

#include <iomanip>
#include <sstream>
#include <string_view>

#include "host/launcher/unix_socket.h"

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kDone = "ok\n";
constexpr std::string_view kRefused = "no\n";
constexpr int kHashDigits = 16;
constexpr std::size_t kLongestRequest = 256;
// A silent client must not hold up the phone.
constexpr int kPatienceMilliseconds = 500;
// A supervisor does little else than answer, but on a busy machine even that can take a while.
constexpr int kAskersPatienceMilliseconds = 5000;

/// An address holds few characters: whether a folder can have sockets is only known by making one.
bool can_hold_sockets(const fs::path& folder) {
  const fs::path longest = application_socket(folder, {});
  const Descriptor made = listening_socket(longest);
  std::error_code ignored;
  fs::remove(longest, ignored);
  return static_cast<bool>(made);
}

std::string read_some(int descriptor, int patience) {
  pollfd waiting{descriptor, POLLIN, 0};
  if (poll(&waiting, 1, patience) <= 0) return {};
  char text[kLongestRequest];
  const auto count = recv(descriptor, text, sizeof text, 0);
  return count > 0 ? std::string(text, static_cast<std::size_t>(count)) : std::string();
}

void write_all(int descriptor, std::string_view text) {
  // These few bytes always fit into a new socket's buffer.
  static_cast<void>(!send(descriptor, text.data(), text.size(), MSG_NOSIGNAL));
}

}  // namespace

fs::path application_socket(const fs::path& folder, const std::string& bundle) {
  std::ostringstream name;
  name << "application-" << std::hex << std::setfill('0') << std::setw(kHashDigits)
       << std::hash<std::string>{}(bundle);
  return folder / name.str();
}

ControlSocket::ControlSocket() : folder_(session_folders(), &can_hold_sockets) {
  if (folder_.path().empty()) return;
  path_ = folder_.path() / "control";
  listener_ = listening_socket(path_);
}

void ControlSocket::serve(const std::function<bool(const ControlRequest&)>& serve) const {
  const Descriptor asker(accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (!asker) return;
  const auto request = read_request(read_some(asker.get(), kPatienceMilliseconds));
  write_all(asker.get(), request && serve(*request) ? kDone : kRefused);
}

bool ask_supervisor(const fs::path& path, const ControlRequest& request) {
  const Descriptor made = connected_socket(path);
  if (!made) return false;
  write_all(made.get(), line_of(request));
  return read_some(made.get(), kAskersPatienceMilliseconds) == kDone;
}

}  // namespace host::launcher
