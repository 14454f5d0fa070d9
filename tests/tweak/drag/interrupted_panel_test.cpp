#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "platform/SpringBoard/SBUIController.h"
#include "platform/UIKit/UIScrollView.h"
#include "tests/tweak/panel_test.h"

// Buttons, touches and gestures while the panel opens or closes.

namespace host::test {
namespace {

constexpr double kGlide = 0.1;
constexpr double kIconTravel = 0.5;
constexpr double kContentFade = 0.7;
/// During the glide, the icon's movement to the top, and the content's fade-in.
constexpr double kMomentsOfOpening[] = {0.05, 0.3, 1.0};

class InterruptedPanel : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    home_ = music_icon().frame();
  }
  void drag_out() {
    begin_drag();
    move_finger({screen().width / 2, screen().height / 2});
    advance(0.2);
    lift();
  }
  void open_for(double seconds) {
    drag_out();
    advance(seconds);
    ASSERT_FALSE(is("isShow"));
  }
  void expect_closed() {
    EXPECT_FALSE(is("isShow"));
    EXPECT_FALSE(is("isBanner"));
    EXPECT_TRUE(view("music").isHidden());
    EXPECT_EQ(music_icon().frame(), home_);
    EXPECT_EQ(alpha("cover"), 0);
    EXPECT_EQ(alpha("container"), 0);
    EXPECT_FALSE(view("window").isUserInteractionEnabled());
  }

  CGRect home_;
};

TEST_F(InterruptedPanel, HomeEndsAnOpeningAtAnyMoment) {
  for (const double moment : kMomentsOfOpening) {
    open_for(moment);
    springboard::press_home();
    EXPECT_FALSE(view("window").isUserInteractionEnabled());
    settle();
    expect_closed();
  }
}

TEST_F(InterruptedPanel, HomeDuringTheOpeningOnlyClosesThePanel) {
  SBIconController::sharedInstance().setIsEditing(NO);
  open_for(0.3);
  EXPECT_EQ(SBUIController::sharedInstance().handleMenuDoubleTap(), YES);
  settle();
  EXPECT_FALSE(SBUIController::sharedInstance().isAppSwitcherShowing());
  expect_closed();
}

TEST_F(InterruptedPanel, EveryEventThatClosesAnOpenPanelEndsAnOpening) {
  const std::function<void()> events[] = {
      [] { springboard::present_banner("a message"); },
      [] { springboard::present_notification_centre(); },
      [] { SBReachabilityManager::sharedInstance()._handleSignificantTimeChanged(); },
  };
  for (const auto& event : events) {
    open_for(0.3);
    event();
    settle();
    expect_closed();
    springboard::press_home();
    advance(8);
  }
}

TEST_F(InterruptedPanel, NoPanelOpensOnALockedPhone) {
  for (const double moment : kMomentsOfOpening) {
    open_for(moment);
    springboard::press_lock();
    settle();
    expect_closed();
    springboard::press_home();
    springboard::unlock();
    settle();
    expect_closed();
  }
}

TEST_F(InterruptedPanel, AFingerLiftedWhileTheDisplayIsOffOpensNothing) {
  begin_drag();
  move_by(0, -100);
  springboard::press_lock();
  advance(0.2);
  lift();
  settle();
  expect_closed();
}

TEST_F(InterruptedPanel, HomeEndsADragUnderTheFinger) {
  begin_drag();
  move_by(0, -100);
  springboard::press_home();
  move_by(0, -100);
  advance(0.2);
  lift();
  settle();
  expect_closed();
  open_panel();
}

TEST_F(InterruptedPanel, HomeTwiceLeavesNothingBehindForTheNextOpening) {
  open_panel();
  springboard::press_home();
  advance(0.8);
  springboard::press_home();
  EXPECT_GE(seconds_until([this] { return !is("isShow"); }), 0);
  drag_out();
  advance(kGlide + kIconTravel + kContentFade + 0.1);
  EXPECT_TRUE(is("isShow"));
  settle();
  EXPECT_TRUE(is("isShow"));
  EXPECT_EQ(alpha("container"), 1);
  EXPECT_EQ(alpha("cover"), 1);
}

TEST_F(InterruptedPanel, EveryCallerOfAClosingGetsItsCompletion) {
  open_panel();
  BOOL first = NO;
  int answers = 0;
  const auto closed = objc::block([&](BOOL finished) {
    if (answers++ == 0) first = finished;
  });
  const objc::Block<void(BOOL)> borrowed = closed;
  objc::send<>(application, "dismis:"_sel, borrowed);
  advance(0.3);
  objc::send<>(application, "dismis:"_sel, borrowed);
  settle();
  EXPECT_EQ(answers, 2);
  EXPECT_EQ(first, NO);
  expect_closed();
}

TEST_F(InterruptedPanel, ATouchOnTheIconAtTheTopKeepsItsHomeFrame) {
  open_panel();
  springboard::press_home();
  advance(0.3);
  ASSERT_NE(music_icon().frame(), home_);
  // The closing window ignores touches, so this one reaches the icon itself.
  press(middle_of(music_icon()));
  EXPECT_EQ(global<CGRect>("saved"), home_);
  touches.cancelled(1, middle_of(music_icon()), clock.now());
  settle();
  expect_closed();
}

TEST_F(InterruptedPanel, ADragOfTheIconAtTheTopIsIgnored) {
  open_panel();
  springboard::press_home();
  advance(0.1);
  hold(middle_of(music_icon()));
  move_by(0, 12);
  move_by(0, 60);
  lift();
  settle();
  expect_closed();
}

TEST_F(InterruptedPanel, AnUnfinishedClosingDoesNotEndTheNextDrag) {
  begin_drag();
  touches.cancelled(1, finger(), clock.now());
  advance(0.2);
  // The icon has not moved, so it takes touches while the backdrop fades out.
  begin_drag();
  move_by(0, -120);
  advance(1);
  EXPECT_FALSE(view("music").isHidden());
  EXPECT_GT(alpha("cover"), 0);
  lift();
  settle();
  EXPECT_TRUE(is("isShow"));
  EXPECT_FALSE(view("music").isHidden());
}

TEST_F(InterruptedPanel, GrabbingTheTwinDuringTheOpeningClosesThePanel) {
  open_for(0.9);
  hold(middle_of(view("music")));
  move_by(0, 12);
  move_by(0, 60);
  advance(2);
  EXPECT_FALSE(is("isShow"));
  lift();
  settle();
  expect_closed();
}

TEST_F(InterruptedPanel, HomeEndsADragBack) {
  open_panel();
  hold(middle_of(view("music")));
  move_by(0, 12);
  move_by(0, 90);
  springboard::press_home();
  advance(0.2);
  move_by(30, 30);
  lift();
  settle();
  expect_closed();
}

TEST_F(InterruptedPanel, AGestureShowsNoBannerDuringAnOpening) {
  for (const double moment : kMomentsOfOpening) {
    open_for(moment);
    objc::send<>(application, "showBanner"_sel);
    EXPECT_FALSE(is("isBanner"));
    settle();
    EXPECT_TRUE(is("isShow"));
    springboard::press_home();
    settle();
    expect_closed();
  }
}

TEST_F(InterruptedPanel, AnIconMovedByTheSystemMeanwhileStaysInItsNewSlot) {
  ASSERT_TRUE(springboard::move_out_of_dock(kPhone));
  settle();
  open_panel();
  const CGFloat y = middle_of(view("container")).y;
  drag({screen().width * 0.85, y}, {screen().width * 0.15, y}, 0.2);
  lift();
  settle();
  ASSERT_TRUE(springboard::move_to_dock(kMusic));
  home_ = music_icon().frame();
  drag({screen().width * 0.15, y}, {screen().width * 0.85, y}, 0.2);
  lift();
  settle();
  EXPECT_EQ(music_icon().frame(), home_);
  springboard::press_home();
  settle();
  expect_closed();
}

TEST_F(InterruptedPanel, AnIconArrangedByTheUserMeanwhileStaysInItsNewSlot) {
  open_panel();
  springboard::press_home();
  // The closing window ignores touches, and the icon is still at the top.
  advance(0.1);
  springboard::set_editing(true);
  drag(middle_of(music_icon()), {292, 382}, 0.06);
  lift();
  advance(0.4);
  const CGRect slot = music_icon().frame();
  ASSERT_NE(slot, home_);
  settle();
  EXPECT_EQ(music_icon().frame(), slot);
  EXPECT_FALSE(is("isShow"));
  EXPECT_TRUE(view("music").isHidden());
}

TEST_F(InterruptedPanel, PagesThatKeepGlidingLeaveTheIconInItsSlot) {
  open_panel();
  const CGFloat y = middle_of(view("container")).y;
  hold({screen().width * 0.9, y});
  for (int step = 0; step < 6; ++step)
    move_by(-20, 0);
  springboard::press_home();
  advance(1.3);
  for (int step = 0; step < 6; ++step)
    move_by(-20, 0);
  lift();
  settle();
  expect_closed();
}

}  // namespace
}  // namespace host::test
