#include <arpa/inet.h>
#include <sys/socket.h>

#include <cstdint>
#include <cstdlib>

#include "fuzz/browser/no_phone.h"
#include "host/basics/message.h"
#include "host/browser/access/loopback.h"
#include "host/browser/phone/phone_page.h"
#include "host/runtime/log.h"

using namespace host;
using namespace host::browser;

namespace {

constexpr std::string_view kUpgrade =
    "GET /phone HTTP/1.1\r\nHost: localhost\r\nOrigin: http://localhost\r\nUpgrade: websocket\r\n"
    "Connection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
    "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n";

/// What inputs have in place of the token of the link, which no input can guess.
const std::string kToken(Access::kKeyLength, '0');

Descriptor visit(int listener, std::string_view bytes) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
  Descriptor made(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (connect(made.get(), reinterpret_cast<sockaddr*>(&address), size) != 0) std::abort();
  send(made.get(), kUpgrade.data(), kUpgrade.size(), MSG_NOSIGNAL);
  send(made.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
  return made;
}

std::string frame(const FromPage& message) {
  const std::string bytes = message_bytes(message);
  return std::string("\x82") + static_cast<char>(0x80 | bytes.size()) + std::string(4, '\0') +
         bytes;
}

}  // namespace

/// Lets a visitor of the phone's page send these bytes behind its handshake. Checks that no
/// page without the token sees or uses the phone, and that its user can afterwards.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  spdlog::set_level(spdlog::level::off);
  constexpr int kTurns = 4;
  static const Descriptor listener = listen_on_loopback();
  SteppedClock clock;
  RunLoop loop(clock);
  const Descriptor memory = Access::make();
  const auto access = Access::open(memory.get());
  NoPhone phone;
  const screen::PhoneBody body{{375, 667}};
  PhonePage page(loop, listener.get(), Access::open(memory.get()), body, 2, phone, [](auto&&) {});

  std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t key = bytes.find(kToken);
  if (key != std::string::npos) bytes.replace(key, kToken.size(), access->token());
  const Descriptor visitor = visit(listener.get(), bytes);
  for (int turn = 0; turn < kTurns; ++turn)
    loop.run_ready();
  if (key == std::string::npos && (page.is_seen() || phone.is_used())) std::abort();

  if (access->token().empty()) access->renew();
  const Descriptor user =
      visit(listener.get(), frame(Present{access->token()}) + frame(Shape{2, true}));
  for (int turn = 0; turn < kTurns; ++turn)
    loop.run_ready();
  if (!page.is_seen()) std::abort();
  return 0;
}
