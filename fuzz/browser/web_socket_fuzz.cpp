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

/// What a page has said, and how the connection ended.
struct Heard {
  std::vector<std::string> messages;
  std::vector<std::string> endings;
  bool operator==(const Heard&) const = default;
};

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

/// Lets a page send the bytes, this many at a time, after those that came behind its handshake.
Heard hear(std::string_view early, std::string_view bytes, std::size_t at_once) {
  SteppedClock clock;
  RunLoop loop(clock);
  int pair[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, pair) != 0) return {};
  const Descriptor page(pair[0]);
  Heard heard;
  PageSocket socket(loop, Descriptor(pair[1]), std::string(early),
                    {[&heard](std::string_view message) { heard.messages.emplace_back(message); },
                     [&heard](const std::string& why) { heard.endings.push_back(why); }});
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
  return heard;
}

}  // namespace

/// Lets a page send these bytes behind its handshake. Checks that they are read alike in one piece
/// and in several, and that a message is refused or is exactly what it would be sent as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (bytes.empty()) return 0;
  const Heard heard = hear(bytes, {}, 1);
  constexpr std::size_t kLongestPiece = 64;
  if (hear({}, bytes, 1 + static_cast<unsigned char>(bytes.back()) % kLongestPiece) != heard)
    std::abort();

  NoPhone phone;
  const screen::PhoneBody body{{375, 667}};
  PageInput input(body, phone);
  for (const std::string& received : heard.messages) {
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
