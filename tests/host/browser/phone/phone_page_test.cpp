#include "tests/host/browser/phone/phone_page_fixture.h"

namespace host::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

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

}  // namespace
}  // namespace host::test
