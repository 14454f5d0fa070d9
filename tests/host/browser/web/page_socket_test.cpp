#include "host/browser/web/page_socket.h"

#include <gmock/gmock.h>
#include <sys/socket.h>

#include "tests/host/browser/support/page_frames.h"
#include "tests/support/host_test.h"

namespace host::test {
namespace {

using browser::PageSocket;
using testing::ElementsAre;
using testing::IsEmpty;

/// A page at the other end of a connection.
struct PageSockets : HostTest {
  PageSockets() { connect(""); }

  void connect(std::string early) {
    int pair[2];
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, pair), 0);
    page = Descriptor(pair[0]);
    socket = std::make_unique<PageSocket>(
        loop, Descriptor(pair[1]), std::move(early),
        PageSocket::Events{[this](std::string_view text) { messages.emplace_back(text); },
                           [this](const std::string& why) { endings.push_back(why); }});
  }
  void write(const std::string& bytes) {
    std::size_t written = 0;
    while (written < bytes.size()) {
      const ssize_t count =
          ::send(page.get(), bytes.data() + written, bytes.size() - written, MSG_NOSIGNAL);
      if (count > 0) written += static_cast<std::size_t>(count);
      if (count < 0 && errno != EAGAIN) return;
      loop.run_ready();
    }
    loop.run_ready();
  }
  /// All that the page can read now.
  std::string read() {
    std::string bytes;
    char piece[4096];
    for (;;) {
      loop.run_ready();
      const ssize_t count = recv(page.get(), piece, sizeof piece, 0);
      if (count <= 0) return bytes;
      bytes.append(piece, static_cast<std::size_t>(count));
    }
  }

  Descriptor page;
  std::vector<std::string> messages;
  std::vector<std::string> endings;
  std::unique_ptr<PageSocket> socket;
};

TEST_F(PageSockets, MessagesComeWhole) {
  write(frame("hello") + frame(std::string(300, 'x')) + frame(""));
  EXPECT_THAT(messages, ElementsAre("hello", std::string(300, 'x'), ""));
  EXPECT_THAT(endings, IsEmpty());
}

TEST_F(PageSockets, AMessageMayComeInPieces) {
  const std::string bytes = frame("hello");
  for (const char byte : bytes)
    write({byte});
  EXPECT_THAT(messages, ElementsAre("hello"));
}

TEST_F(PageSockets, WhatCameBehindTheHandshakeIsReadFirst) {
  connect(frame("early"));
  write(frame("late"));
  EXPECT_THAT(messages, ElementsAre("early", "late"));
}

TEST_F(PageSockets, MessagesAreSent) {
  socket->send("picture");
  std::string bytes = read();
  EXPECT_EQ(take_frame(bytes), "picture");
}

TEST_F(PageSockets, TextEndsTheConnection) {
  write(frame("hello", Opcode::kText) + frame("more"));
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_THAT(endings, ElementsAre("sends text, where bytes are due"));
  EXPECT_FALSE(socket->is_open());
}

TEST_F(PageSockets, WhatCameBeforeATextIsHeardHoweverItCame) {
  for (const bool at_once : {true, false}) {
    messages.clear();
    connect("");
    const std::string text = frame("hello", Opcode::kText) + frame("more");
    if (!at_once) write(frame("first"));
    write(at_once ? frame("first") + text : text);
    EXPECT_THAT(messages, ElementsAre("first")) << at_once;
    EXPECT_FALSE(socket->is_open());
  }
}

TEST_F(PageSockets, AMessageThatIsTooLongEndsTheConnection) {
  write(frame(std::string(PageSocket::kLongestMessage + 1, 'x')));
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_THAT(endings, ElementsAre("sends a message that is too long"));
}

TEST_F(PageSockets, TheLongestMessageIsRead) {
  write(frame(std::string(PageSocket::kLongestMessage, 'x')));
  EXPECT_EQ(messages.size(), 1u);
}

TEST_F(PageSockets, AFrameThatBreaksTheProtocolEndsTheConnection) {
  std::string reserved = frame("hello");
  reserved[0] = static_cast<char>(reserved[0] | 0x70);
  write(reserved);
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_THAT(endings, ElementsAre("breaks the protocol"));
}

TEST_F(PageSockets, AFrameWithoutAMaskEndsTheConnection) {
  write(std::string("\x82\x05hello"));
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_THAT(endings, ElementsAre("breaks the protocol"));
}

TEST_F(PageSockets, ACutFrameIsNoMessage) {
  const std::string whole = frame("hello");
  write(whole.substr(0, whole.size() - 1));
  shutdown(page.get(), SHUT_WR);
  loop.run_ready();
  EXPECT_THAT(messages, IsEmpty());
  EXPECT_EQ(endings.size(), 1u);
}

TEST_F(PageSockets, APageThatGoesEndsTheConnectionOnce) {
  page.reset();
  advance(1);
  EXPECT_THAT(endings, ElementsAre(""));
}

TEST_F(PageSockets, APageThatTakesLeaveIsAnswered) {
  write(frame("", Opcode::kClose));
  EXPECT_THAT(endings, ElementsAre(""));
}

TEST_F(PageSockets, APingIsAnswered) {
  write(frame("hi", Opcode::kPing));
  std::string bytes = read();
  EXPECT_EQ(take_frame(bytes), "hi");
}

TEST_F(PageSockets, AReaderThatStopsIsDisconnectedAndTheQueueIsBounded) {
  const std::string picture(std::size_t{1024} * 1024, 'x');
  int sent = 0;
  while (socket->is_open() && sent < 100) {
    socket->send(picture);
    ++sent;
  }
  loop.run_ready();
  EXPECT_LE(sent, 20);
  EXPECT_THAT(endings, ElementsAre("does not read what it is sent"));
}

TEST_F(PageSockets, PingsOfAPageThatDoesNotReadAreBounded) {
  for (int i = 0; i < 2000 && socket->is_open(); ++i) {
    socket->send(std::string(1024, 'x'));
    write(frame(std::string(100, 'p'), Opcode::kPing));
  }
  EXPECT_FALSE(socket->is_open());
}

TEST_F(PageSockets, AFloodDoesNotHoldUpTheLoop) {
  std::string flood;
  for (int i = 0; i < 40000; ++i)
    flood += frame("xy");
  std::size_t most = 0;
  std::size_t written = 0;
  while (written < flood.size()) {
    const ssize_t count = ::send(page.get(), flood.data() + written, flood.size() - written, 0);
    if (count > 0) written += static_cast<std::size_t>(count);
    const std::size_t before = messages.size();
    int turns = 0;
    const RunLoop::Id observer = loop.add_turn_observer(0, [&turns] { ++turns; });
    loop.run_ready();
    loop.remove_turn_observer(observer);
    if (turns > 0)
      most = std::max(most, (messages.size() - before) / static_cast<std::size_t>(turns));
  }
  EXPECT_EQ(messages.size(), 40000u);
  // A frame of two bytes takes eight.
  EXPECT_LE(most, 64u * 1024 / 8);
}

TEST_F(PageSockets, TheListenerMayDeleteTheSocket) {
  socket->set_events({[this](std::string_view) { socket.reset(); }, {}});
  write(frame("a") + frame("b"));
  EXPECT_EQ(socket, nullptr);
}

TEST_F(PageSockets, AClosedSocketSaysWhatItHadToSay) {
  socket->send("last words");
  socket->close();
  socket->send("too late");
  std::string bytes = read();
  EXPECT_EQ(take_frame(bytes), "last words");
  EXPECT_EQ(take_frame(bytes).substr(0, 2), "\x03\xE8");
  EXPECT_THAT(bytes, IsEmpty());
  write(frame("\x03\xE8", Opcode::kClose));
  EXPECT_THAT(endings, ElementsAre(""));
}

}  // namespace
}  // namespace host::test
