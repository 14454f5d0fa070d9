#include "host/springboard/system/system_actions.h"
#include "platform/UIKit/UITextField.h"
#include "tests/tweak/banner/banner_fixture.h"

// Touches, gestures and buttons while the banner is moving, and the state in which it leaves the
// panel for its next appearance.

namespace host::test {
namespace {

class InterruptedBanner : public BannerTest {
 protected:
  void SetUp() override {
    BannerTest::SetUp();
    home_ = music_icon().frame();
    show();
    hanging_ = window_y();
  }
  void call() { objc::send<>(application, "showBanner"_sel); }
  void dismiss_banner() { objc::send<>(application, "dismissBanner"_sel); }
  void cancel_touch() { touches.cancelled(1, finger(), clock.now()); }
  /// Grabs above the screen's edge, where a touch would bring the control centre.
  void grab_open() {
    const CGPoint middle = middle_of(view("grabs"));
    hold({middle.x, middle.y - 6});
    move_by(0, -12);
  }
  bool is_hanging() const {
    return is("isBanner") && !is("showed") && window_y() == hanging_ && alpha("cover") == 1 &&
           alpha("container") == 1 && !view("music").isHidden() &&
           view("window").isUserInteractionEnabled();
  }
  bool can_be_paged() const { return global<UIScrollView>("container").isScrollEnabled(); }
  void expect_gone() {
    EXPECT_FALSE(is("isBanner"));
    EXPECT_FALSE(is("isGrabbing"));
    EXPECT_EQ(window_y(), 0);
    EXPECT_EQ(alpha("cover"), 0);
    EXPECT_EQ(alpha("container"), 0);
    EXPECT_TRUE(view("music").isHidden());
    EXPECT_EQ(music_icon().frame(), home_);
  }

  CGRect home_;
  CGFloat hanging_ = 0;
};

TEST_F(InterruptedBanner, ACancelledGrabLetsItHangAgain) {
  const CGFloat texts = y_of("container1");
  const CGFloat play_y = y_of("play");
  grab();
  move_by(0, 140);
  cancel_touch();
  EXPECT_FALSE(is("isGrabbing"));
  settle();
  EXPECT_TRUE(is_hanging());
  EXPECT_EQ(y_of("container1"), texts);
  EXPECT_EQ(y_of("play"), play_y);
  pull_open();
  EXPECT_TRUE(is("showed"));
}

TEST_F(InterruptedBanner, ACancelledGrabOfTheOpenBannerLeavesItOpen) {
  pull_open();
  grab_open();
  move_by(0, -80);
  cancel_touch();
  EXPECT_FALSE(is("isGrabbing"));
  settle();
  EXPECT_TRUE(is("showed"));
  EXPECT_TRUE(is("isBanner"));
  EXPECT_EQ(window_y(), 0);
  EXPECT_TRUE(can_be_paged());
}

TEST_F(InterruptedBanner, ReleasedInPlaceItAcceptsTheTransportAgain) {
  pull_open();
  grab_open();
  move_by(0, 40);
  ASSERT_EQ(window_y(), 0);
  lift();
  settle();
  EXPECT_FALSE(is("isGrabbing"));
  EXPECT_TRUE(is("showed"));
}

TEST_F(InterruptedBanner, AnInterruptedOpeningLeavesNoPictureBehind) {
  const GrabberPicture picture;
  grab();
  move_by(0, 40);
  lift();
  advance(0.2);
  springboard::press_home();
  advance(0.1);
  call();
  settle();
  EXPECT_TRUE(is_hanging());
  EXPECT_EQ(picture.last(), kGrabDragging);
}

TEST_F(InterruptedBanner, WithoutAGrabItLeavesAPanelWhosePagesTurn) {
  dismiss_banner();
  settle();
  expect_gone();
  EXPECT_TRUE(can_be_paged());
}

TEST_F(InterruptedBanner, ABannerThatLeavesCannotBeGrabbed) {
  dismiss_banner();
  advance(0.1);
  grab();
  move_by(0, 40);
  lift();
  settle();
  expect_gone();
  EXPECT_FALSE(is("showed"));
}

TEST_F(InterruptedBanner, PushedUpItHidesTheKeyboard) {
  pull_open();
  const auto field = global<UITextField>("searchBar");
  ASSERT_TRUE(field.becomeFirstResponder());
  dismiss_banner();
  EXPECT_FALSE(field.isFirstResponder());
}

TEST_F(InterruptedBanner, DismissedDuringAGrabItIsGone) {
  grab();
  move_by(0, 60);
  springboard::press_home();
  advance(0.1);
  move_by(0, 30);
  lift();
  settle();
  expect_gone();
}

TEST_F(InterruptedBanner, ShownAgainWhileItLeavesItComesBack) {
  dismiss_banner();
  advance(0.2);
  call();
  settle();
  EXPECT_TRUE(is_hanging());
  EXPECT_FALSE(is("isGrabbing"));
}

TEST_F(InterruptedBanner, ShownAgainDuringAGrabItIgnoresThatFinger) {
  grab();
  move_by(0, 60);
  call();
  advance(0.1);
  move_by(0, 60);
  lift();
  settle();
  EXPECT_TRUE(is_hanging());
  EXPECT_FALSE(is("isGrabbing"));
}

TEST_F(InterruptedBanner, TheIconCanBeDraggedWhileItLeaves) {
  dismiss_banner();
  advance(0.1);
  begin_drag();
  move_by(0, -120);
  advance(0.6);
  EXPECT_GT(alpha("cover"), 0);
  EXPECT_FALSE(view("music").isHidden());
  lift();
  settle();
  EXPECT_TRUE(is("isShow"));
  EXPECT_EQ(alpha("container"), 1);
  EXPECT_EQ(alpha("cover"), 1);
  EXPECT_TRUE(is_laid_out_below_artwork(kLiftWithoutTexts));
  EXPECT_TRUE(can_be_paged());
}

TEST_F(InterruptedBanner, ShownAfterThePanelWasLeftOnAnotherPageItLeavesTheIconInPlace) {
  dismiss_banner();
  settle();
  open_panel();
  const CGFloat y = middle_of(view("container")).y;
  drag({screen().width * 0.85, y}, {screen().width * 0.15, y}, 0.2);
  lift();
  settle();
  drag(middle_of(view("music")), {screen().width / 2, 300}, 0.3);
  lift();
  settle();
  ASSERT_EQ(music_icon().frame(), home_);
  call();
  settle();
  EXPECT_EQ(music_icon().frame(), home_);
}

class BannerWithoutMusic : public PanelTest {};

TEST_F(BannerWithoutMusic, AGestureShowsNothing) {
  remove_application("Music");
  launch();
  objc::send<>(application, "showBanner"_sel);
  settle();
  EXPECT_FALSE(is("isBanner"));
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_FALSE(view("window").isUserInteractionEnabled());
}

}  // namespace
}  // namespace host::test
