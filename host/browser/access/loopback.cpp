#include "host/browser/access/loopback.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace host::browser {
namespace {

// Connections that wait while the home screen restarts.
constexpr int kWaiting = 16;

}  // namespace

Descriptor listen_on_loopback() {
  Descriptor listener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (bind(listener.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
      listen(listener.get(), kWaiting) != 0)
    return {};
  return listener;
}

std::optional<std::string> link_to(int listener, const std::string& token) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  if (getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) != 0) return std::nullopt;
  return "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/#" + token;
}

}  // namespace host::browser
