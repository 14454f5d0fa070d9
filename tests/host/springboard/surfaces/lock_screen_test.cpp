#include "tests/host/springboard/support/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class LockScreenTest : public SurfaceTest {
 protected:
  void lock_and_wake() {
    press_lock();
    settle();
    press_lock();
    settle();
  }
};

TEST_F(LockScreenTest, TheLockButtonTurnsTheDisplayOffAndStopsAllAnimations) {
  press_lock();
  settle();
  EXPECT_TRUE(lock_screen().is_locked());
  EXPECT_FALSE(display().is_on());
  EXPECT_TRUE(is_at_rest());
}

TEST_F(LockScreenTest, ADarkDisplayIgnoresTouches) {
  press_lock();
  settle();
  fling({40, 400}, {340, 400}, 0.2);
  settle();
  EXPECT_TRUE(lock_screen().is_locked());
}

TEST_F(LockScreenTest, EitherButtonShowsTheLockScreen) {
  press_lock();
  press_home();
  EXPECT_TRUE(display().is_on());
  EXPECT_TRUE(lock_screen().is_locked());
  press_lock();
  EXPECT_FALSE(display().is_on());
  press_lock();
  EXPECT_TRUE(display().is_on());
  EXPECT_TRUE(lock_screen().is_locked());
}

TEST_F(LockScreenTest, ItShowsTheTimeAndShimmers) {
  lock_and_wake();
  EXPECT_TRUE(lock_screen().panel()->time().text().isEqualToString("9:41"_ns));
  EXPECT_FALSE(is_at_rest());
}

TEST_F(LockScreenTest, ASlideToTheRightUnlocks) {
  lock_and_wake();
  fling({60, 500}, {330, 505}, 0.3);
  EXPECT_FALSE(lock_screen().is_locked());
  settle();
  EXPECT_FALSE(lock_screen().panel());
  EXPECT_TRUE(is_at_rest());
}

TEST_F(LockScreenTest, AShortSlideSpringsBack) {
  lock_and_wake();
  drag({60, 500}, {130, 500}, 0.5, 0.3);
  lift();
  settle();
  EXPECT_TRUE(lock_screen().is_locked());
}

TEST_F(LockScreenTest, ASlideToTheLeftDoesNothing) {
  lock_and_wake();
  fling({330, 500}, {60, 500}, 0.2);
  settle();
  EXPECT_TRUE(lock_screen().is_locked());
}

TEST_F(LockScreenTest, TheIconsBelowGetNoTouches) {
  lock_and_wake();
  SBIconController::sharedInstance().setIsEditing(NO);
  press(on_screen(kMusic));
  EXPECT_FALSE(icon_view(kMusic).isHighlighted());
}

TEST_F(LockScreenTest, AMessageWakesItAndDisappearsAfterUnlocking) {
  press_lock();
  settle();
  present_banner("Rain at noon");
  EXPECT_TRUE(display().is_on());
  EXPECT_FALSE(banners().is_showing_banner());
  unlock();
  settle();
  EXPECT_FALSE(lock_screen().is_locked());
  EXPECT_EQ(notification_centre().store().all().size(), 1u);
}

TEST_F(LockScreenTest, ReadMessagesDoNotReturnAtTheNextLock) {
  lock_and_wake();
  present_banner("Rain at noon");
  EXPECT_TRUE(lock_screen().panel()->has_messages());
  unlock();
  settle();
  lock_and_wake();
  EXPECT_FALSE(lock_screen().panel()->has_messages());
}

TEST_F(LockScreenTest, LockingClosesTheSurfaces) {
  present_control_centre();
  settle();
  lock();
  EXPECT_FALSE(control_centre().is_presented());
  unlock();
  settle();
  present_notification_centre();
  settle();
  lock();
  EXPECT_FALSE(notification_centre().is_presented());
}

}  // namespace
}  // namespace host::springboard
