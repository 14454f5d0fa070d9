#include "tests/host/springboard/support/surface_fixture.h"
#include "tests/tweak/method_spy.h"

namespace host::springboard {
namespace {

using namespace test;

class NotificationCentreTest : public SurfaceTest {
 protected:
  bool is_open() const { return notification_centre().is_presented(); }
  NotificationCentrePanel& panel() { return *notification_centre().panel(); }
  /// The bottom edge of the glass.
  CGFloat seen() { return CGRect(panel().sheet().frame()).max_y(); }
};

TEST_F(NotificationCentreTest, APullFromTheTopEdgeOpensIt) {
  fling(top_edge(), {middle().x, 500}, 0.4);
  settle();
  EXPECT_TRUE(is_open());
  EXPECT_NEAR(seen(), screen().height, 0.5);
  EXPECT_TRUE(is_at_rest());
}

TEST_F(NotificationCentreTest, ItFollowsTheFinger) {
  drag(top_edge(), {middle().x, 220}, 0.3, 0.2);
  EXPECT_NEAR(seen(), 220, 0.5);
}

TEST_F(NotificationCentreTest, FingersAndHomeSendTheControllersMessages) {
  const objc::Class controller = SBNotificationCenterController::cls();
  const MethodSpy<"presentAnimated:", void(SBNotificationCenterController, BOOL)> presents(
      controller);
  const MethodSpy<"dismissAnimated:", void(SBNotificationCenterController, BOOL)> dismisses(
      controller);
  drag(top_edge(), {middle().x, 80}, 0.5, 0.3);
  EXPECT_EQ(presents.count(), 1);
  EXPECT_TRUE(SBNotificationCenterController::sharedInstance().isVisible());
  EXPECT_NEAR(seen(), 80, 0.5) << "and it follows the finger";
  lift();
  EXPECT_EQ(dismisses.count(), 1);
  settle();
  EXPECT_FALSE(notification_centre().panel());
  fling(top_edge(), {middle().x, 500}, 0.4);
  settle();
  fling({middle().x, screen().height - 5}, {middle().x, 200}, 0.3);
  settle();
  EXPECT_EQ(dismisses.count(), 2);
  present_notification_centre();
  press_home();
  EXPECT_EQ(presents.count(), 3);
  EXPECT_EQ(dismisses.count(), 3);
}

TEST_F(NotificationCentreTest, WithoutAnimationItOpensAndClosesAtOnce) {
  const auto controller = SBNotificationCenterController::sharedInstance();
  controller.presentAnimated(NO);
  EXPECT_NEAR(seen(), screen().height, 0.5);
  controller.dismissAnimated(NO);
  EXPECT_FALSE(notification_centre().panel());
}

TEST_F(NotificationCentreTest, APullThatBeginsBelowTheEdgeIsIgnored) {
  fling({middle().x, 14}, {middle().x, 500}, 0.4);
  settle();
  EXPECT_FALSE(is_open());
}

TEST_F(NotificationCentreTest, APullUpFromItsBottomClosesIt) {
  present_notification_centre();
  settle();
  fling({middle().x, screen().height - 5}, {middle().x, 200}, 0.3);
  settle();
  EXPECT_FALSE(is_open());
  EXPECT_FALSE(control_centre().is_presented());
}

TEST_F(NotificationCentreTest, TheHomeButtonClosesIt) {
  present_notification_centre();
  settle();
  press_home();
  settle();
  EXPECT_FALSE(is_open());
  EXPECT_FALSE(notification_centre().panel());
}

TEST_F(NotificationCentreTest, TheTabsShowTheDayAndTheMessages) {
  present_notification_centre();
  settle();
  EXPECT_FALSE(panel().shows_today());
  tap({middle().x - 70, 42});
  EXPECT_TRUE(panel().shows_today());
  tap({middle().x + 70, 42});
  EXPECT_FALSE(panel().shows_today());
}

TEST_F(NotificationCentreTest, TheClearButtonClearsTheMessages) {
  present_banner("Rain at noon");
  advance(7);
  present_notification_centre();
  settle();
  const UIButton clear = panel().clear_button();
  tap(clear.convertPointToView(CGRect(clear.bounds()).centre(), nil));
  EXPECT_TRUE(notification_centre().store().all().empty());
}

}  // namespace
}  // namespace host::springboard
