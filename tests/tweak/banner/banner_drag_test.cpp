#include "platform/SpringBoard/SBControlCenterController.h"
#include "tests/tweak/banner/banner_fixture.h"

namespace host::test {
namespace {

constexpr double kOpening = 0.5;

class BannerDrag : public BannerTest {
 protected:
  void SetUp() override {
    BannerTest::SetUp();
    play("Alpha");
    advance(1.2);
    show();
    start_ = window_y();
  }

  /// Grabs above the screen's edge, where a touch would bring the control centre.
  void grab_upwards() {
    const CGPoint middle = middle_of(view("grabs"));
    hold({middle.x, middle.y - 6});
    move_by(0, -12);
  }

  CGFloat start_ = 0;
};

TEST_F(BannerDrag, TheWindowFollowsTheFinger) {
  grab();
  EXPECT_EQ(window_y(), start_);
  move_by(0, 100);
  EXPECT_EQ(window_y(), start_ + 100);
  move_by(0, -30);
  EXPECT_EQ(window_y(), start_ + 70);
  EXPECT_TRUE(is("isGrabbing"));
}

TEST_F(BannerDrag, TheControlsRiseAndStopBelowEachOther) {
  const CGFloat texts = y_of("container1");
  grab();
  move_by(0, 20);
  EXPECT_EQ(y_of("container1"), texts - 20);
  EXPECT_EQ(y_of("play"), frame("container1").max_y() + 10);
  EXPECT_EQ(y_of("back"), frame("container1").max_y() + 20);
  move_by(0, 300);
  EXPECT_TRUE(is_laid_out_below_artwork(0));
}

TEST_F(BannerDrag, HalfVisibleTextsKeepTheirSpace) {
  view("container1").setAlpha(0.5);
  pull_open();
  EXPECT_TRUE(is_laid_out_below_artwork(0));
}

TEST_F(BannerDrag, PushedUpItLeavesTheControlsInPlace) {
  grab();
  const CGFloat texts = y_of("container1");
  const CGFloat play_y = y_of("play");
  move_by(0, -20);
  EXPECT_EQ(window_y(), start_ - 20);
  EXPECT_EQ(y_of("container1"), texts);
  EXPECT_EQ(y_of("play"), play_y);
}

TEST_F(BannerDrag, ReleasedBelowItsStartItOpens) {
  grab();
  move_by(0, 40);
  lift();
  EXPECT_TRUE(is("showed"));
  EXPECT_THAT(seconds_until([this] { return !is("isGrabbing"); }), IsSoonAfter(kOpening));
  EXPECT_EQ(window_y(), 0);
  EXPECT_TRUE(is_laid_out_below_artwork(0));
  EXPECT_TRUE(global<UIScrollView>("container").isScrollEnabled());
  EXPECT_TRUE(is("isBanner"));
}

TEST_F(BannerDrag, ReleasedExactlyAtItsStartItOpens) {
  grab();
  ASSERT_EQ(window_y(), start_);
  lift();
  settle();
  EXPECT_TRUE(is("showed"));
  EXPECT_EQ(window_y(), 0);
}

TEST_F(BannerDrag, ReleasedAboveItsStartItIsDismissed) {
  const MethodSpy<"dismissBanner", void(SpringBoard)> sent_away(SpringBoard::cls());
  grab();
  move_by(0, -1);
  lift();
  EXPECT_EQ(sent_away.count(), 1);
  EXPECT_FALSE(is("isBanner"));
  EXPECT_TRUE(is("isGrabbing"));
  settle();
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_EQ(window_y(), 0);
  EXPECT_FALSE(is("isGrabbing"));
}

TEST_F(BannerDrag, FullyDownTheControlsWaitForItToMove) {
  grab();
  move_by(0, -start_);
  ASSERT_EQ(window_y(), 0);
  ASSERT_TRUE(is_laid_out_below_artwork(0));
  move_by(0, -500);
  EXPECT_TRUE(is_laid_out_below_artwork(0));
  move_by(0, 1);
  EXPECT_FALSE(is_laid_out_below_artwork(0));
}

TEST_F(BannerDrag, OpenItCannotBePulledFurtherDown) {
  pull_open();
  grab_upwards();
  move_by(0, 60);
  EXPECT_EQ(window_y(), 0);
  EXPECT_TRUE(is_laid_out_below_artwork(0));
}

TEST_F(BannerDrag, OpenItFollowsUntilTheFingerIsLifted) {
  const GrabberPicture picture;
  const auto pages = global<UIScrollView>("container");
  pull_open();
  const float resting = global<float>("firstContainer1");
  grab_upwards();
  EXPECT_FALSE(pages.isScrollEnabled());
  move_by(0, -60);
  move_by(0, 80);
  EXPECT_EQ(window_y(), 0);
  EXPECT_TRUE(is_laid_out_below_artwork(0));
  lift();
  settle();
  EXPECT_TRUE(pages.isScrollEnabled());
  EXPECT_FALSE(is("isGrabbing"));
  EXPECT_EQ(picture.last(), kGrabDone);
  EXPECT_EQ(global<float>("firstContainer1"), resting);
}

TEST_F(BannerDrag, DismissedOnAnotherPageItComesBackWithTheArtwork) {
  const auto pages = global<UIScrollView>("container");
  pull_open();
  pages.setContentOffset({screen().width, 0});
  dismiss_and_settle();
  EXPECT_THAT(pages.contentOffset(), IsNear(CGPoint{0, 0}));
}

TEST_F(BannerDrag, OpenItIsDismissedByAPushUpwards) {
  pull_open();
  grab_upwards();
  move_by(0, -60);
  EXPECT_EQ(window_y(), -60);
  lift();
  settle();
  EXPECT_FALSE(is("isBanner"));
  EXPECT_EQ(alpha("container"), 0);
}

TEST_F(BannerDrag, ItsStartDismissesTheControlCentre) {
  const MethodSpy<"dismissAnimated:", void(SBControlCenterController, BOOL)> sent_away(
      SBControlCenterController::cls());
  grab();
  ASSERT_EQ(sent_away.count(), 1);
  EXPECT_EQ(std::get<0>(sent_away.last()), YES);
}

TEST_F(BannerDrag, TheGrabberShowsWhatCanBeDone) {
  const GrabberPicture picture;
  grab();
  EXPECT_EQ(picture.last(), kGrabDragging);
  move_by(0, 40);
  lift();
  advance(kOpening - 0.05);
  EXPECT_EQ(picture.last(), kGrabDragging);
  advance(0.1);
  EXPECT_EQ(picture.last(), kGrabDone);
}

TEST_F(BannerDrag, ShownAgainWhileOpenTheGrabberShowsThatItCanBeDragged) {
  const GrabberPicture picture;
  pull_open();
  ASSERT_EQ(picture.last(), kGrabDone);
  objc::send<>(application, "showBanner"_sel);
  EXPECT_EQ(picture.last(), kGrabDragging);
}

class BannerDragWithoutTexts : public BannerTest {};

TEST_F(BannerDragWithoutTexts, EachControlRisesFromItsOwnPosition) {
  show();
  const CGFloat back_y = y_of("back");
  CGRect next = frame("next");
  next.origin.y -= 20;
  view("next").setFrame(next);
  grab();
  move_by(0, 5);
  EXPECT_EQ(y_of("next"), next.origin.y - 5);
  EXPECT_EQ(y_of("back"), back_y - 5);
}

TEST_F(BannerDragWithoutTexts, TheControlsRiseToTheLiftedLayout) {
  show();
  grab();
  move_by(0, 350);
  EXPECT_FALSE(is("showed"));
  EXPECT_TRUE(is_laid_out_below_artwork(kLiftWithoutTexts));
}

TEST_F(BannerDragWithoutTexts, TheOpenLayoutIsLifted) {
  show();
  pull_open();
  ASSERT_EQ(alpha("container1"), 0);
  EXPECT_TRUE(is_laid_out_below_artwork(kLiftWithoutTexts));
}

}  // namespace
}  // namespace host::test
