#pragma once

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include "host/basics/message.h"
#include "host/browser/access/loopback.h"
#include "host/browser/phone/phone_page.h"
#include "tests/host/browser/support/page_frames.h"
#include "tests/host/screen/written_input.h"
#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"

namespace host::test {

using namespace browser;

inline constexpr const char* kUpgrade =
    "GET /phone HTTP/1.1\r\nHost: localhost\r\nOrigin: http://localhost\r\nUpgrade: websocket\r\n"
    "Connection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
    "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n";

/// A page of a test: a connection that speaks as a browser does.
class TestPage {
 public:
  TestPage(RunLoop& loop, int listener) : loop_(loop) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size);
    connection_ = Descriptor(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    EXPECT_EQ(connect(connection_.get(), reinterpret_cast<sockaddr*>(&address), size), 0);
    const int at_once = 1;
    setsockopt(connection_.get(), IPPROTO_TCP, TCP_NODELAY, &at_once, sizeof at_once);
    write(kUpgrade);
    read();
    bytes_.erase(0, bytes_.find("\r\n\r\n") + 4);
  }

  void send(const FromPage& message) { write(frame(message_bytes(message))); }
  void write(const std::string& bytes) {
    ::send(connection_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    for (int i = 0; i < 4; ++i)
      loop_.run_ready();
  }
  /// All messages that have come.
  std::vector<ToPage> messages() {
    read();
    std::vector<ToPage> made;
    for (;;) {
      const std::string one = take_frame(bytes_);
      if (one.empty()) return made;
      if (auto message = message_from<ToPage>(one)) made.push_back(std::move(*message));
    }
  }
  /// The first message of this kind among those that have come.
  template <class Message>
  std::optional<Message> take() {
    for (const ToPage& message : messages()) {
      if (const auto* found = std::get_if<Message>(&message)) return *found;
    }
    return std::nullopt;
  }
  bool is_closed() {
    read();
    return is_closed_;
  }
  void leave() {
    connection_.reset();
    for (int i = 0; i < 4; ++i)
      loop_.run_ready();
  }

 private:
  void read() {
    char piece[65536];
    for (;;) {
      loop_.run_ready();
      const ssize_t count = recv(connection_.get(), piece, sizeof piece, MSG_DONTWAIT);
      if (count == 0 || (count < 0 && errno == ECONNRESET)) is_closed_ = true;
      if (count <= 0) return;
      bytes_.append(piece, static_cast<std::size_t>(count));
    }
  }

  RunLoop& loop_;
  Descriptor connection_;
  std::string bytes_;
  bool is_closed_ = false;
};

struct PhonePages : HostTest {
  PhonePages() { start(); }

  /// Again, as after a restart of the home screen.
  void start() {
    phone.reset();
    phone = std::make_unique<PhonePage>(loop, listener.get(), Access::open(memory.get()), body, 2,
                                        input,
                                        [this](const std::string& link) { links.push_back(link); });
  }
  TestPage visit() { return {loop, listener.get()}; }
  std::string token() const { return Access::open(memory.get())->token(); }
  std::string enter(TestPage& page, const std::string& key) {
    page.send(Present{key});
    const auto welcome = page.take<Welcome>();
    if (!welcome) return {};
    page.send(Shape{1, true});
    return welcome->secret;
  }

  /// Checks that the bytes cost their page its connection and no other page anything.
  void expect_disconnected(const std::string& bytes, const std::string& why) {
    phone->offer_link();
    TestPage page = visit();
    enter(page, token());
    log.take();
    page.write(bytes);
    EXPECT_TRUE(page.is_closed());
    EXPECT_FALSE(phone->screen().is_watched());
    EXPECT_EQ(log.text(), "warning: browser: the page " + why + ": disconnected\n");
    phone->offer_link();
    TestPage next = visit();
    EXPECT_FALSE(enter(next, token()).empty());
  }

  CaughtLog log;
  const screen::PhoneBody body{{100, 200}};
  WrittenInput input;
  Descriptor listener = listen_on_loopback();
  Descriptor memory = Access::make();
  std::vector<std::string> links;
  std::unique_ptr<PhonePage> phone;
};

}  // namespace host::test
