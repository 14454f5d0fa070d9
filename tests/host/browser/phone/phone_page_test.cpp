#include "host/browser/phone/phone_page.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include "host/basics/message.h"
#include "host/browser/access/loopback.h"
#include "tests/host/browser/support/page_frames.h"
#include "tests/host/screen/written_input.h"
#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"

namespace host::test {
namespace {

using namespace browser;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kUpgrade =
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

/// Two views.
class WrittenViews final : public ViewSource {
 public:
  Views views() override {
    ++times_asked;
    return {.left_out = 3, .count = 2, .rows = "two"};
  }
  std::string description(std::uint32_t view) override {
    return view < 2 ? "view " + std::to_string(view) : "";
  }

  int times_asked = 0;
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

  /// Checks that the bytes cost their page its connection and nobody else anything.
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

TEST_F(PhonePages, TheLinkLetsOnePageIn) {
  TestPage page = visit();
  EXPECT_FALSE(phone->screen().is_watched());
  page.send(Present{token()});
  const auto welcome = page.take<Welcome>();
  ASSERT_TRUE(welcome);
  EXPECT_EQ(welcome->width, body.size().width);
  EXPECT_EQ(welcome->screen_x, body.screen().min_x());
  EXPECT_EQ(welcome->screen_height, 200);
  EXPECT_FALSE(phone->screen().is_watched());
  page.send(Shape{1, true});
  EXPECT_TRUE(phone->screen().is_watched());
}

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

TEST_F(PhonePages, ASecondVisitorIsToldSo) {
  const std::string link = token();
  TestPage first = visit();
  enter(first, link);
  TestPage second = visit();
  second.send(Present{link});
  const auto refused = second.take<Refused>();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->reason, Reason::OpenElsewhere);
  EXPECT_FALSE(first.is_closed());
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

TEST_F(PhonePages, AReloadGoesOn) {
  TestPage page = visit();
  const std::string secret = enter(page, token());
  page.leave();
  EXPECT_FALSE(phone->screen().is_watched());
  TestPage again = visit();
  EXPECT_EQ(enter(again, secret), secret);
  EXPECT_TRUE(phone->screen().is_watched());
  EXPECT_TRUE(phone->screen().needs_everything());
  advance(60);
  EXPECT_THAT(links, IsEmpty());
}

TEST_F(PhonePages, ARestartedHomeScreenKnowsItsPage) {
  TestPage page = visit();
  const std::string secret = enter(page, token());
  start();
  EXPECT_TRUE(page.is_closed());
  TestPage again = visit();
  EXPECT_EQ(enter(again, secret), secret);
}

TEST_F(PhonePages, AnotherTabOfTheSamePageTakesOver) {
  TestPage first = visit();
  const std::string secret = enter(first, token());
  TestPage second = visit();
  EXPECT_EQ(enter(second, secret), secret);
  const auto refused = first.take<Refused>();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->reason, Reason::MovedAway);
  first.send(Key{"return"});
  second.send(Key{"tab"});
  EXPECT_THAT(input.done, ElementsAre("key tab"));
}

TEST_F(PhonePages, APageThatDoesNotComeBackLeavesANewLink) {
  TestPage page = visit();
  const std::string secret = enter(page, token());
  page.leave();
  advance(PhonePage::kReturn + 1);
  ASSERT_THAT(links, SizeIs(1));
  EXPECT_EQ(links[0], link_to(listener.get(), token()));
  // A tab that has slept for longer comes back as long as nobody has used the link.
  TestPage late = visit();
  EXPECT_EQ(enter(late, secret), secret);
}

TEST_F(PhonePages, AUserWhoAsksGetsALinkAgain) {
  phone->offer_link();
  ASSERT_THAT(links, SizeIs(1));
  EXPECT_EQ(links[0], link_to(listener.get(), token()));
}

TEST_F(PhonePages, ThePagesUserUsesThePhone) {
  TestPage page = visit();
  enter(page, token());
  page.send(PointerChange{1, PointerPhase::Down, 1, body.screen().min_x() + 10,
                          body.screen().min_y() + 20});
  page.send(Typed{"a"});
  EXPECT_THAT(input.done, ElementsAre("touch 1 0 10 20", "type a"));
  page.leave();
  EXPECT_THAT(input.done, ElementsAre("touch 1 0 10 20", "type a", "touch 1 2 10 20"));
}

TEST_F(PhonePages, ASleepingPhoneIsNotUsed) {
  phone->set_awake(false);
  TestPage page = visit();
  enter(page, token());
  page.send(Typed{"a"});
  EXPECT_THAT(input.done, IsEmpty());
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

TEST_F(PhonePages, PicturesSongsAndCaretsAreToldAsTheyChange) {
  phone->set_song({"Dear", "Hanne Wick", true});
  TestPage page = visit();
  enter(page, token());
  phone->set_song({"Other", "", false});
  const auto song = page.take<Song>();
  ASSERT_TRUE(song);
  EXPECT_EQ(song->title, "Other");
  input.caret_place = CGRect(10, 20, 2, 20);
  loop.perform([] {});
  const auto caret = page.take<Caret>();
  ASSERT_TRUE(caret);
  EXPECT_TRUE(caret->takes_text);
  EXPECT_EQ(caret->y, 20);
  const std::vector<unsigned> pixels(20 * 40, 0xFF00FF00);
  const screen::PixelRect whole[] = {{0, 0, 20, 40}};
  phone->screen().show({reinterpret_cast<const unsigned char*>(pixels.data()), 20, 40, 80}, whole);
  const auto part = page.take<Part>();
  ASSERT_TRUE(part);
  EXPECT_EQ(part->width, 20);
}

TEST_F(PhonePages, AreToldOfTheViewsOnlyWhenTheyAsk) {
  WrittenViews written;
  phone->set_views(&written);
  TestPage page = visit();
  enter(page, token());
  advance(10);
  EXPECT_FALSE(page.take<Views>());
  EXPECT_EQ(written.times_asked, 0);
  page.send(AskViews{});
  const auto views = page.take<Views>();
  ASSERT_TRUE(views);
  EXPECT_EQ(views->left_out, 3);
  EXPECT_EQ(views->rows, "two");
  advance(10);
  EXPECT_THAT(page.messages(), IsEmpty());
  page.send(AskDescription{1});
  EXPECT_EQ(page.take<Description>()->text, "view 1");
  page.send(AskDescription{0xFFFFFFFF});
  EXPECT_EQ(page.take<Description>()->text, "");
  EXPECT_THAT(input.done, IsEmpty());
}

TEST_F(PhonePages, WaitForViewsUntilTheHomeScreenIsThere) {
  TestPage page = visit();
  enter(page, token());
  page.send(AskViews{});
  EXPECT_FALSE(page.take<Views>());
  WrittenViews written;
  phone->set_views(&written);
  loop.perform([] {});
  EXPECT_TRUE(page.take<Views>());
}

TEST_F(PhonePages, AreToldOfTheViewsOnceHoweverOftenTheyAsk) {
  WrittenViews written;
  phone->set_views(&written);
  TestPage page = visit();
  enter(page, token());
  std::string crowd;
  for (int i = 0; i < 1000; ++i)
    crowd += frame(message_bytes(FromPage(AskViews{})));
  page.write(crowd);
  page.messages();
  EXPECT_THAT(written.times_asked, testing::AllOf(testing::Ge(1), testing::Le(8)));
  EXPECT_FALSE(page.is_closed());
}

TEST_F(PhonePages, ForgetWhatAnotherTabHasAsked) {
  TestPage first = visit();
  const std::string secret = enter(first, token());
  first.send(AskViews{});
  TestPage second = visit();
  enter(second, secret);
  WrittenViews written;
  phone->set_views(&written);
  loop.perform([] {});
  EXPECT_FALSE(second.take<Views>());
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
