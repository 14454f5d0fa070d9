#include "host/browser/web/server.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <sys/socket.h>

#include "host/browser/access/loopback.h"
#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"

namespace host::test {
namespace {

using namespace browser;
using testing::HasSubstr;
using testing::StartsWith;

constexpr std::array kFiles{PageFile{"/", "text/plain", "the page"}};

struct Servers : HostTest {
  Descriptor connect() {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    getsockname(listener.get(), reinterpret_cast<sockaddr*>(&address), &size);
    Descriptor made(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
    EXPECT_EQ(::connect(made.get(), reinterpret_cast<sockaddr*>(&address), size), 0);
    loop.run_ready();
    return made;
  }
  void write(const Descriptor& client, const std::string& bytes) {
    ::send(client.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    for (int i = 0; i < 3; ++i)
      loop.run_ready();
  }
  /// What the client can read now.
  static std::string read(const Descriptor& client) {
    char piece[8192];
    const ssize_t count = recv(client.get(), piece, sizeof piece, MSG_DONTWAIT);
    return count > 0 ? std::string(piece, static_cast<std::size_t>(count)) : std::string();
  }
  /// True when the server has closed the connection.
  static bool is_closed(const Descriptor& client) {
    char byte = 0;
    const ssize_t count = recv(client.get(), &byte, 1, MSG_DONTWAIT | MSG_PEEK);
    return count == 0 || (count < 0 && errno != EAGAIN);
  }

  Descriptor listener = listen_on_loopback();
  std::vector<std::pair<Descriptor, std::string>> upgraded;
  Server server{loop, listener.get(), kFiles, [this](Descriptor connection, std::string early) {
                  upgraded.emplace_back(std::move(connection), std::move(early));
                }};
};

constexpr const char* kUpgrade =
    "GET /phone HTTP/1.1\r\nHost: localhost\r\nOrigin: http://localhost\r\nUpgrade: websocket\r\n"
    "Connection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
    "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n";

TEST_F(Servers, AnswerAndClose) {
  const Descriptor client = connect();
  write(client, "GET / HTTP/1.1\r\nHost: localhost\r\n\r\n");
  EXPECT_THAT(read(client),
              testing::AllOf(StartsWith("HTTP/1.1 200 OK\r\n"), HasSubstr("the page")));
  EXPECT_TRUE(is_closed(client));
}

TEST_F(Servers, PassOnAWebSocketWithItsEarlyBytes) {
  const Descriptor client = connect();
  write(client, std::string(kUpgrade) + "early");
  EXPECT_THAT(read(client), StartsWith("HTTP/1.1 101 "));
  ASSERT_EQ(upgraded.size(), 1u);
  EXPECT_EQ(upgraded[0].second, "early");
  EXPECT_FALSE(is_closed(client));
}

TEST_F(Servers, RefuseAnotherNameAndSayItOnceAMinute) {
  const CaughtLog log;
  const Descriptor client = connect();
  write(client, "GET / HTTP/1.1\r\nHost: evil.example\r\n\r\n");
  EXPECT_THAT(read(client), StartsWith("HTTP/1.1 403 "));
  write(connect(), "GET / HTTP/1.1\r\nHost: other.example\r\n\r\n");
  EXPECT_EQ(log.text(),
            "warning: browser: refused a request to the host 'evil.example' by a page of ''\n");
}

TEST_F(Servers, RefuseAPageFromElsewhereWithALine) {
  const CaughtLog log;
  const Descriptor client = connect();
  write(client,
        "GET /phone HTTP/1.1\r\nHost: localhost\r\nOrigin: http://evil.example\r\n"
        "Upgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
        "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
  EXPECT_THAT(read(client), StartsWith("HTTP/1.1 403 "));
  EXPECT_TRUE(upgraded.empty());
  EXPECT_EQ(log.text(),
            "warning: browser: refused a request to the host 'localhost' by a page of "
            "'http://evil.example'\n");
}

TEST_F(Servers, SayThatAPageIsFromElsewhereAlsoAfterACrowd) {
  const CaughtLog log;
  std::vector<Descriptor> crowd;
  for (std::size_t i = 0; i <= Server::kMostConnections; ++i)
    crowd.push_back(connect());
  crowd.clear();
  for (int i = 0; i < 4; ++i)
    loop.run_ready();
  write(connect(), "GET / HTTP/1.1\r\nHost: evil.example\r\n\r\n");
  EXPECT_THAT(log.text(), HasSubstr("more than 32 connections"));
  EXPECT_THAT(log.text(), HasSubstr("evil.example"));
}

TEST_F(Servers, CloseWhatIsNoRequest) {
  const Descriptor client = connect();
  write(client, "\x16\x03\x01\x02");
  EXPECT_TRUE(is_closed(client));
}

TEST_F(Servers, GiveASlowClientTenSeconds) {
  const Descriptor client = connect();
  write(client, "GET / HT");
  advance(Server::kPatience - 1);
  EXPECT_FALSE(is_closed(client));
  advance(2);
  EXPECT_TRUE(is_closed(client));
}

TEST_F(Servers, AThousandConnectionsAreBoundedAndOthersAreServedAfterwards) {
  const CaughtLog log;
  std::vector<Descriptor> crowd;
  for (int i = 0; i < 1000; ++i)
    crowd.push_back(connect());
  for (int i = 0; i < 100; ++i)
    loop.run_ready();
  int open = 0;
  for (const Descriptor& one : crowd)
    open += !is_closed(one);
  EXPECT_EQ(open, static_cast<int>(Server::kMostConnections));
  EXPECT_EQ(log.text(), "warning: browser: more than 32 connections at once: others are closed\n");
  advance(Server::kPatience + 1);
  const Descriptor client = connect();
  write(client, "GET / HTTP/1.1\r\nHost: localhost\r\n\r\n");
  EXPECT_THAT(read(client), HasSubstr("the page"));
}

}  // namespace
}  // namespace host::test
