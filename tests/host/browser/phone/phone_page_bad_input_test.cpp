#include "tests/host/browser/phone/phone_page_fixture.h"

namespace host::test {
namespace {

using testing::IsEmpty;

TEST_F(PhonePages, AWrongKeyIsRefused) {
  TestPage page = visit();
  page.send(Present{std::string(Access::kKeyLength, '0')});
  const auto refused = page.take<Refused>();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->reason, Reason::UsedLink);
  EXPECT_FALSE(phone->screen().is_watched());
  EXPECT_EQ(log.text(), "warning: browser: a page with a link that is not valid was turned away\n");
}

TEST_F(PhonePages, WrongKeysAreOneLineAMinute) {
  for (int i = 0; i < 20; ++i)
    visit().send(Present{std::string(Access::kKeyLength, '0')});
  const std::string line =
      "warning: browser: a page with a link that is not valid was turned away\n";
  EXPECT_EQ(log.text(), line);
  advance(61);
  visit().send(Present{std::string(Access::kKeyLength, '1')});
  EXPECT_EQ(log.text(), line + line);
  TestPage page = visit();
  EXPECT_FALSE(enter(page, token()).empty());
}

TEST_F(PhonePages, NothingIsHeardOfAVisitorWhoDoesNotSayWhoItIs) {
  TestPage page = visit();
  page.send(Key{"return"});
  page.send(Present{token()});
  EXPECT_TRUE(page.is_closed());
  EXPECT_THAT(input.done, IsEmpty());
}

TEST_F(PhonePages, AVisitorHasTenSeconds) {
  TestPage page = visit();
  advance(11);
  EXPECT_TRUE(page.is_closed());
}

TEST_F(PhonePages, AMessageThatIsNoneEndsTheConnectionWithALine) {
  for (const std::string& bytes :
       {std::string("x"), std::string(20, '\xFF'), message_bytes(ToPage(Welcome{}))})
    expect_disconnected(frame(bytes), "sends an invalid message");
}

TEST_F(PhonePages, TextEndsTheConnectionWithALine) {
  expect_disconnected(frame("hello", Opcode::kText), "sends text, where bytes are due");
}

TEST_F(PhonePages, AnOversizedMessageEndsTheConnectionWithALine) {
  expect_disconnected(frame(std::string(PageSocket::kLongestMessage + 1, 'x')),
                      "sends a message that is too long");
}

TEST_F(PhonePages, AnOversizedFrameEndsTheConnectionWithALine) {
  expect_disconnected("\x82\xFF\x7F" + std::string(12, '\xFF'), "sends a message that is too long");
}

TEST_F(PhonePages, AFrameThatBreaksTheProtocolEndsTheConnectionWithALine) {
  expect_disconnected("\x82\x01x", "breaks the protocol");
}

TEST_F(PhonePages, ACutFrameEndsWithItsConnectionAndThePageComesBack) {
  TestPage page = visit();
  const std::string secret = enter(page, token());
  page.write(frame(message_bytes(FromPage(Typed{"a"}))).substr(0, 9));
  page.leave();
  EXPECT_FALSE(phone->screen().is_watched());
  EXPECT_THAT(input.done, IsEmpty());
  TestPage again = visit();
  EXPECT_EQ(enter(again, secret), secret);
}

TEST_F(PhonePages, AReaderThatStopsIsDisconnectedWithALine) {
  TestPage page = visit();
  enter(page, token());
  int told = 0;
  while (phone->screen().is_watched() && told < 100) {
    phone->set_song({std::string(std::size_t{1024} * 1024, 'x'), "", true});
    loop.run_ready();
    ++told;
  }
  EXPECT_LT(told, 40);
  EXPECT_EQ(log.text(), "warning: browser: the page does not read what it is sent: disconnected\n");
}

TEST_F(PhonePages, AFewVisitorsWaitAtMostAndTheOthersAreOneLine) {
  std::vector<TestPage> crowd;
  for (int i = 0; i < 20; ++i)
    crowd.push_back(visit());
  int open = 0;
  for (TestPage& one : crowd)
    open += !one.is_closed();
  EXPECT_EQ(open, 8);
  EXPECT_EQ(log.text(), "warning: browser: more than 8 visitors at once: others are turned away\n");
  advance(11);
  TestPage page = visit();
  EXPECT_FALSE(enter(page, token()).empty());
}

}  // namespace
}  // namespace host::test
