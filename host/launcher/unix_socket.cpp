#include "host/launcher/unix_socket.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <cerrno>
#include <cstring>
#include <optional>

namespace host::launcher {
namespace {

constexpr int kWaitingAtMost = 8;

std::optional<sockaddr_un> address_of(const std::filesystem::path& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.native().size() >= sizeof address.sun_path) {
    errno = ENAMETOOLONG;
    return std::nullopt;
  }
  std::memcpy(address.sun_path, path.c_str(), path.native().size() + 1);
  return address;
}

Descriptor new_socket() {
  return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
}

}  // namespace

Descriptor listening_socket(const std::filesystem::path& path) {
  const auto address = address_of(path);
  Descriptor made = new_socket();
  if (!address || !made) return {};
  const auto* where = reinterpret_cast<const sockaddr*>(&*address);
  if (bind(made.get(), where, sizeof *address) != 0 || listen(made.get(), kWaitingAtMost) != 0)
    return {};
  return made;
}

Descriptor connected_socket(const std::filesystem::path& path) {
  const auto address = address_of(path);
  Descriptor made = new_socket();
  if (!address || !made) return {};
  const auto* where = reinterpret_cast<const sockaddr*>(&*address);
  if (connect(made.get(), where, sizeof *address) != 0) return {};
  return made;
}

}  // namespace host::launcher
