#include <sys/socket.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "fuzz/browser/no_phone.h"
#include "host/basics/message.h"
#include "host/browser/phone/page_input.h"
#include "host/browser/web/page_socket.h"

using namespace host;
using namespace host::browser;

namespace {

/// Checks that the phone answers with whole frames of control alone, which are never masked.
void check_answers(std::string_view bytes) {
  constexpr unsigned kClose = 0x88, kPong = 0x8a, kMostOfControl = 125;
  while (!bytes.empty()) {
    const auto head = static_cast<unsigned char>(bytes[0]);
    if (bytes.size() < 2 || (head != kClose && head != kPong)) std::abort();
    const auto length = static_cast<unsigned char>(bytes[1]);
    if (length > kMostOfControl || bytes.size() < std::size_t{2} + length) std::abort();
    bytes.remove_prefix(std::size_t{2} + length);
  }
}

/// The messages of a page that sends the bytes, this many at a time, after those that came behind
/// its handshake. How the connection ends may depend on the pieces: the library checks the text of
/// a farewell piece by piece, and its code at the end.
std::vector<std::string> hear(std::string_view early, std::string_view bytes, std::size_t at_once) {
  SteppedClock clock;
  RunLoop loop(clock);
  int pair[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, pair) != 0) return {};
  const Descriptor page(pair[0]);
  std::vector<std::string> messages;
  PageSocket socket(
      loop, Descriptor(pair[1]), std::string(early),
      {[&messages](std::string_view message) { messages.emplace_back(message); }, {}});
  std::string answers;
  const auto turn = [&] {
    loop.run_ready();
    char piece[4096];
    for (ssize_t count; (count = recv(page.get(), piece, sizeof piece, 0)) > 0;)
      answers.append(piece, static_cast<std::size_t>(count));
  };
  turn();
  while (!bytes.empty()) {
    const std::string_view piece = bytes.substr(0, at_once);
    if (send(page.get(), piece.data(), piece.size(), MSG_NOSIGNAL) < 0) break;
    bytes.remove_prefix(piece.size());
    turn();
  }
  for (int i = 0; i < 4; ++i)
    turn();
  check_answers(answers);
  return messages;
}

}  // namespace

/// Lets a page send these bytes behind its handshake. Checks that they are read alike in one piece
/// and in several, and that a message is refused or is exactly what it would be sent as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (bytes.empty()) return 0;
  const auto heard = hear(bytes, {}, 1);
  constexpr std::size_t kLongestPiece = 64;
  if (hear({}, bytes, 1 + static_cast<unsigned char>(bytes.back()) % kLongestPiece) != heard)
    std::abort();

  NoPhone phone;
  const screen::PhoneBody body{{375, 667}};
  PageInput input(body, phone);
  for (const std::string& received : heard) {
    const auto message = message_from<FromPage>(received);
    if (!message) continue;
    if (message_bytes(*message) != received) std::abort();
    std::visit(
        [&input](const auto& one) {
          if constexpr (requires { input.take(one); }) input.take(one);
        },
        *message);
  }
  input.let_go();
  return 0;
}
