#include "host/launcher/control_socket.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string_view>

namespace host::launcher {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kDone = "ok\n";
// An asker that says nothing must not hold up the phone.
constexpr int kPatienceMilliseconds = 500;

std::optional<sockaddr_un> address_of(const fs::path& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.native().size() >= sizeof address.sun_path) return std::nullopt;
  std::memcpy(address.sun_path, path.c_str(), path.native().size() + 1);
  return address;
}

/// A new folder that only this user may enter; empty when none can be made.
fs::path new_folder() {
  std::error_code error;
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  for (const fs::path& parent :
       {fs::path(runtime ? runtime : ""), fs::temp_directory_path(error)}) {
    std::string name = parent / "sonavue-XXXXXX";
    if (parent.is_absolute() && mkdtemp(name.data())) return name;
  }
  return {};
}

Descriptor new_socket() {
  return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

std::string read_some(int descriptor) {
  pollfd waiting{descriptor, POLLIN, 0};
  if (poll(&waiting, 1, kPatienceMilliseconds) <= 0) return {};
  char text[64];
  const auto count = recv(descriptor, text, sizeof text, 0);
  return count > 0 ? std::string(text, static_cast<std::size_t>(count)) : std::string();
}

void write_all(int descriptor, std::string_view text) {
  // These few bytes always fit a fresh socket's buffer.
  static_cast<void>(!send(descriptor, text.data(), text.size(), MSG_NOSIGNAL));
}

}  // namespace

ControlSocket::ControlSocket() {
  folder_ = new_folder();
  if (folder_.empty()) return;
  path_ = folder_ / "control";
  const auto address = address_of(path_);
  Descriptor made = new_socket();
  if (!address || !made) return;
  const auto* where = reinterpret_cast<const sockaddr*>(&*address);
  if (bind(made.get(), where, sizeof *address) != 0 || listen(made.get(), 8) != 0) return;
  listener_ = std::move(made);
}

ControlSocket::~ControlSocket() {
  std::error_code ignored;
  if (!folder_.empty()) fs::remove_all(folder_, ignored);
}

bool ControlSocket::take_restart_request() {
  const Descriptor asker(accept4(listener_.get(), nullptr, nullptr, SOCK_CLOEXEC));
  if (!asker || read_some(asker.get()) != kRestartRequest) return false;
  write_all(asker.get(), kDone);
  return true;
}

bool ask_for_restart(const fs::path& path) {
  const auto address = address_of(path);
  const Descriptor made = new_socket();
  if (!address || !made) return false;
  const auto* where = reinterpret_cast<const sockaddr*>(&*address);
  if (connect(made.get(), where, sizeof *address) != 0) return false;
  write_all(made.get(), kRestartRequest);
  return read_some(made.get()) == kDone;
}

}  // namespace host::launcher
