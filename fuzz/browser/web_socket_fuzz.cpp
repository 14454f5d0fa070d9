#include <sys/socket.h>

#include <cstdint>
#include <cstdlib>

#include "host/basics/message.h"
#include "host/browser/phone/page_input.h"
#include "host/browser/web/page_socket.h"

using namespace host;
using namespace host::browser;

namespace {

/// A phone on which nothing happens.
class NoPhone final : public screen::Input {
 public:
  void touch(int, screen::TouchPhase, CGPoint) override {}
  void wheel(CGPoint, CGPoint, screen::WheelKind) override {}
  void type(std::string_view) override {}
  void compose(std::string_view, int) override {}
  void key(std::string_view) override {}
  std::optional<CGRect> caret() const override { return std::nullopt; }
  void right_click(CGPoint) override {}
  void press(screen::Button) override {}
  void button(screen::Button, screen::ButtonPhase) override {}
  void shake() override {}
  void drop(std::vector<std::string>) override {}
  void close() override {}
};

}  // namespace

/// Lets a page send these bytes behind its handshake. Checks that a message is refused or is
/// exactly what it would be sent as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  SteppedClock clock;
  RunLoop loop(clock);
  int pair[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, pair) != 0) return 0;
  const Descriptor page(pair[0]);
  NoPhone phone;
  const screen::PhoneBody body{{375, 667}};
  PageInput input(body, phone);
  const auto take = [&input](std::string_view bytes) {
    const auto message = message_from<FromPage>(bytes);
    if (!message) return;
    if (message_bytes(*message) != bytes) std::abort();
    std::visit(
        [&input](const auto& one) {
          if constexpr (requires { input.take(one); }) input.take(one);
        },
        *message);
  };
  PageSocket socket(loop, Descriptor(pair[1]), {reinterpret_cast<const char*>(data), size},
                    {take, {}});
  for (int turn = 0; turn < 4; ++turn)
    loop.run_ready();
  input.let_go();
  return 0;
}
