#include "host/console/line_server.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "host/basics/console_line.h"
#include "tests/host/console/fake_phone.h"

namespace {

using namespace host::console;

class LineServers : public testing::Test {
 protected:
  LineServers() {
    EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends_), 0);
    server_.emplace(ends_[1], session_, [this] { ++quits_; });
  }
  ~LineServers() override {
    close(ends_[0]);
    close(ends_[1]);
  }

  void write(std::string_view text) {
    ASSERT_EQ(::write(ends_[0], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    server_->serve();
  }
  /// Returns the new answers.
  std::string answers() {
    char bytes[4096];
    const auto count = recv(ends_[0], bytes, sizeof bytes, MSG_DONTWAIT);
    return count > 0 ? std::string(bytes, static_cast<std::size_t>(count)) : std::string();
  }

  int ends_[2];
  int quits_ = 0;
  FakePhone phone_;
  Globals globals_;
  Session session_{phone_, globals_};
  std::optional<LineServer> server_;
};

TEST_F(LineServers, EveryLineHasOneAnswerInOrder) {
  write("advance 1\necho two\njump\n\n");
  EXPECT_EQ(answers(), "ok\ntwo\nerror: unknown command: jump (column 1)\nok\n");
}

TEST_F(LineServers, APartialLineWaitsForItsEnd) {
  write("adva");
  EXPECT_EQ(answers(), "");
  write("nce 1\nec");
  EXPECT_EQ(answers(), "ok\n");
  EXPECT_EQ(phone_.done.size(), 1u);
}

TEST_F(LineServers, QuitIsAnsweredAndThenEndsTheConsole) {
  write("quit\n");
  EXPECT_EQ(answers(), "ok\n");
  EXPECT_EQ(quits_, 1);
}

TEST_F(LineServers, TheOtherEndGoingAwayEndsTheConsole) {
  shutdown(ends_[0], SHUT_WR);
  server_->serve();
  EXPECT_EQ(quits_, 1);
}

TEST_F(LineServers, InputThatEndsInTheMiddleOfALineIsAnErrorAndRunsNothing) {
  write("advance 1\nadvance 2");
  shutdown(ends_[0], SHUT_WR);
  server_->serve();
  EXPECT_EQ(answers(), "ok\nerror: the input ended in the middle of a line\n");
  EXPECT_EQ(phone_.done, std::vector<std::string>{"advance 1"});
  EXPECT_EQ(quits_, 1);
}

TEST_F(LineServers, AnOverlongLineIsRefusedAndTheNextOneServed) {
  const std::string part(4096, 'x');
  for (std::size_t sent = 0; sent <= 2 * host::kLongestConsoleLine; sent += part.size())
    write(part);
  write("\n");
  EXPECT_EQ(answers(), "error: the line is too long\n");
  write("echo still here\n");
  EXPECT_EQ(answers(), "still here\n");
}

TEST_F(LineServers, AnEndlessLineIsRefusedAtItsEnd) {
  const std::string part(4096, 'x');
  for (std::size_t sent = 0; sent <= 40 * host::kLongestConsoleLine; sent += part.size())
    write(part);
  EXPECT_EQ(answers(), "");
  shutdown(ends_[0], SHUT_WR);
  server_->serve();
  EXPECT_EQ(answers(), "error: the line is too long\n");
  EXPECT_EQ(quits_, 1);
}

TEST_F(LineServers, NothingIsReadWhileNothingIsThere) {
  fcntl(ends_[1], F_SETFL, O_NONBLOCK);
  server_->serve();
  EXPECT_EQ(quits_, 0);
  write("echo here\n");
  EXPECT_EQ(answers(), "here\n");
}

TEST_F(LineServers, BytesThatAreNotTextAreAnError) {
  write(std::string_view("\0\xff\x01\n", 4));
  EXPECT_TRUE(answers().starts_with("error: "));
}

}  // namespace
