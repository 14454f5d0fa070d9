#include "platform/UIKit/UITextField.h"
#include "tests/tweak/banner/banner_fixture.h"

namespace host::test {
namespace {

using Banner = BannerTest;

TEST_F(Banner, HangsFromTheTopAtItsHeight) {
  play("Alpha");
  advance(1.2);
  show();
  EXPECT_TRUE(is("isBanner"));
  EXPECT_FALSE(is("showed"));
  EXPECT_FALSE(is("isShow"));
  EXPECT_EQ(hanging(), kBannerWithTexts);
  EXPECT_EQ(alpha("cover"), 1);
  EXPECT_EQ(alpha("container"), 1);
  EXPECT_FALSE(view("music").isHidden());
  EXPECT_FALSE(view("grabbers").isHidden());
  EXPECT_TRUE(view("window").isUserInteractionEnabled());
}

TEST_F(Banner, HasSpaceForTextsOnlyWhenTheyAreFullyVisible) {
  view("container1").setAlpha(0.5);
  objc::send<>(application, "showBanner"_sel);
  EXPECT_EQ(hanging(), kBannerWithoutTexts);
}

TEST_F(Banner, SlidesInFromAboveTheScreenInHalfASecond) {
  objc::send<>(application, "showBanner"_sel);
  EXPECT_EQ(hanging(), kBannerWithoutTexts);
  const CALayer shown = view("window").layer().presentationLayer();
  EXPECT_TRUE(!shown || shown.frame().origin.y <= -height() + 1);
  advance(0.49);
  EXPECT_LT(view("window").layer().presentationLayer().frame().max_y(), kBannerWithoutTexts);
}

TEST_F(Banner, IsInPlaceAfterExactlyHalfASecond) {
  objc::send<>(application, "showBanner"_sel);
  const double took = seconds_until([this] {
    const CALayer shown = view("window").layer().presentationLayer();
    return shown && shown.frame().max_y() == kBannerWithoutTexts;
  });
  EXPECT_THAT(took, testing::AllOf(testing::Gt(0.5 - RunLoop::kFrame),
                                   testing::Le(0.5 + 1.5 * RunLoop::kFrame)));
}

TEST_F(Banner, IsSixtyPointsShorterWithoutTheTexts) {
  show();
  ASSERT_EQ(alpha("container1"), 0);
  EXPECT_EQ(hanging(), kBannerWithoutTexts);
}

TEST_F(Banner, ControlsAreAtTheBottomOfThePages) {
  play("Alpha");
  advance(1.2);
  show();
  const CGFloat end = frame("container").size.height;
  EXPECT_EQ(frame("back").max_y(), end - 20);
  EXPECT_EQ(frame("next").max_y(), end - 20);
  EXPECT_EQ(frame("play").max_y(), end - 10);
  EXPECT_EQ(frame("container1").max_y(), y_of("play") - 5);
}

TEST_F(Banner, ControlsAreThereAsSoonAsItAppears) {
  objc::send<>(application, "showBanner"_sel);
  advance(2 * RunLoop::kFrame);
  EXPECT_EQ(frame("play").max_y(), frame("container").size.height - 10);
}

TEST_F(Banner, ShowsTheArtworkPageAndDisablesScrolling) {
  const auto pages = global<UIScrollView>("container");
  pages.setContentOffset({screen().width, 0});
  show();
  EXPECT_THAT(pages.contentOffset(), IsNear(CGPoint{0, 0}));
  EXPECT_FALSE(pages.isScrollEnabled());
}

TEST_F(Banner, TheTwinIsATenthDownTheScreen) {
  show();
  const CGSize size = frame("music").size;
  EXPECT_THAT(frame("music").origin,
              IsNear(CGPoint{(screen().width - size.width) / 2, (height() - size.height) / 10}));
}

TEST_F(Banner, IsNotShownWhileThePanelIsOpenOrTheFeatureIsOff) {
  open_panel();
  show();
  EXPECT_FALSE(is("isBanner"));
  objc::send<>(application, "dismisWithNoAction"_sel);
  settle();
  global<BOOL>("enabled") = NO;
  show();
  EXPECT_FALSE(is("isBanner"));
  EXPECT_EQ(window_y(), 0);
}

TEST_F(Banner, EndsTypingInTheSearchField) {
  const auto field = global<UITextField>("searchBar");
  ASSERT_TRUE(field.becomeFirstResponder());
  show();
  EXPECT_FALSE(field.isFirstResponder());
}

TEST_F(Banner, ASecondCallSlidesItInAgain) {
  show();
  pull_open();
  ASSERT_TRUE(is("showed"));
  objc::send<>(application, "showBanner"_sel);
  EXPECT_FALSE(is("showed"));
  advance(0.1);
  const CGFloat seen = view("window").layer().presentationLayer().frame().max_y();
  EXPECT_LT(seen, kBannerWithoutTexts);
  settle();
  EXPECT_EQ(hanging(), kBannerWithoutTexts);
}

TEST_F(Banner, DismissedItLeavesNothingOnTheScreen) {
  play("Alpha");
  advance(1.2);
  show();
  dismiss_and_settle();
  EXPECT_FALSE(is("isBanner"));
  EXPECT_FALSE(is("isGrabbing"));
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_EQ(alpha("container"), 0);
  EXPECT_TRUE(view("music").isHidden());
  EXPECT_FALSE(view("window").isUserInteractionEnabled());
  EXPECT_EQ(window_y(), 0);
  EXPECT_TRUE(is_laid_out_below_artwork(0));
}

TEST_F(Banner, DismissedWithoutTextsItLeavesTheControlsLifted) {
  show();
  dismiss_and_settle();
  EXPECT_TRUE(is_laid_out_below_artwork(kLiftWithoutTexts));
}

TEST_F(Banner, SlidesOutInHalfASecond) {
  show();
  objc::send<>(application, "dismissBanner"_sel);
  EXPECT_FALSE(is("isBanner"));
  EXPECT_EQ(window_y(), -height());
  advance(0.48);
  EXPECT_EQ(alpha("cover"), 1);
  advance(0.04);
  EXPECT_EQ(alpha("cover"), 0);
}

class BannerOfAnOldPhone : public BannerTest, public ::testing::WithParamInterface<const char*> {
 protected:
  BannerOfAnOldPhone() : BannerTest(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(, BannerOfAnOldPhone, ::testing::Values("iPhone3,1", "iPhone4,1"),
                         [](const auto& phone) {
                           return std::string(phone.param).substr(0, 7) + "_1";
                         });

TEST_P(BannerOfAnOldPhone, IsFifteenPointsShorterWhileMusicPlays) {
  ASSERT_EQ(global<float>("max"), 0);
  show();
  EXPECT_EQ(hanging(), kBannerWithoutTexts);
  dismiss_and_settle();
  play("Alpha");
  advance(1.2);
  show();
  EXPECT_EQ(hanging(), kBannerWithTexts - 15);
}

}  // namespace
}  // namespace host::test
