#include "tests/host/browser/phone/phone_page_fixture.h"

namespace host::test {
namespace {

using testing::IsEmpty;

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

}  // namespace
}  // namespace host::test
