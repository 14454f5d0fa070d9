#include "host/uikit/touch/system_gestures.h"
#include "tests/host/springboard/support/surface_fixture.h"
#include "tests/settings/replaced_method.h"
#include "tests/tweak/method_spy.h"

namespace host::springboard {
namespace {

using namespace test;

void swallow(SBControlCenterController, BOOL) {}

class ControlCentreTest : public SurfaceTest {
 protected:
  bool is_open() const { return control_centre().is_presented(); }
  CGFloat seen() const { return screen().height - top_of(control_centre().sheet()); }
};

TEST_F(ControlCentreTest, APullFromTheBottomEdgeOpensIt) {
  fling(bottom_edge(), {middle().x, 250}, 0.3);
  settle();
  EXPECT_TRUE(is_open());
  EXPECT_GT(seen(), 250);
  EXPECT_TRUE(is_at_rest());
}

TEST_F(ControlCentreTest, ItFollowsTheFinger) {
  drag(bottom_edge(), {middle().x, screen().height - 150}, 0.3, 0.2);
  EXPECT_NEAR(seen(), 150, 0.5);
  move({middle().x, screen().height - 90});
  EXPECT_NEAR(seen(), 90, 0.5);
}

TEST_F(ControlCentreTest, AShortSlowPullDoesNotOpenIt) {
  drag(bottom_edge(), {middle().x, screen().height - 80}, 0.5, 0.3);
  lift();
  settle();
  EXPECT_FALSE(is_open());
  EXPECT_FALSE(control_centre().sheet());
}

TEST_F(ControlCentreTest, AShortFastPullOpensIt) {
  fling(bottom_edge(), {middle().x, screen().height - 80}, 0.08);
  settle();
  EXPECT_TRUE(is_open());
}

TEST_F(ControlCentreTest, BeyondItsPlaceItMovesOnlyALittle) {
  fling(bottom_edge(), {middle().x, 250}, 0.3);
  settle();
  const CGFloat open = seen();
  lift();
  drag({middle().x, screen().height - open + 10}, {middle().x, screen().height - open - 90}, 0.3,
       0.2);
  EXPECT_GT(seen(), open + 10);
  EXPECT_LT(seen(), open + 40);
  lift();
  settle();
  EXPECT_NEAR(seen(), open, 0.5);
}

TEST_F(ControlCentreTest, APullSendsThePresentMessageAndAnEarlyReleaseTheDismissMessage) {
  const MethodSpy<"presentAnimated:", void(SBControlCenterController, BOOL)> presents(
      SBControlCenterController::cls());
  const MethodSpy<"dismissAnimated:", void(SBControlCenterController, BOOL)> dismisses(
      SBControlCenterController::cls());
  drag(bottom_edge(), {middle().x, screen().height - 80}, 0.5, 0.3);
  EXPECT_EQ(presents.count(), 1);
  EXPECT_NEAR(seen(), 80, 0.5) << "and it follows the finger";
  lift();
  EXPECT_EQ(dismisses.count(), 1);
  settle();
  EXPECT_FALSE(control_centre().sheet());
  fling(bottom_edge(), {middle().x, 250}, 0.3);
  settle();
  EXPECT_EQ(presents.count(), 2);
  EXPECT_EQ(dismisses.count(), 1);
  EXPECT_TRUE(is_open());
}

/// Claims each finger that has moved far enough, as the gesture service does for its listeners.
class FarGestures final : public uikit::SystemGestures {
 public:
  FarGestures() { uikit::add_system_gestures(this); }
  ~FarGestures() override { uikit::remove_system_gestures(this); }
  Claim touch(int, UITouchPhase, CGPoint point, double) override {
    return point.y < 400 ? Claim::System : Claim::Windows;
  }
};

TEST_F(ControlCentreTest, ItGoesBackWhenAnotherGestureTakesTheFinger) {
  const FarGestures others;
  drag(bottom_edge(), {middle().x, 420}, 0.2);
  ASSERT_TRUE(is_open());
  move({middle().x, 390});
  EXPECT_FALSE(is_open());
  move({middle().x, 200});
  lift();
  settle();
  EXPECT_FALSE(control_centre().sheet());
}

TEST_F(ControlCentreTest, ItStaysClosedWhenAnExtensionSwallowsTheMessage) {
  const sonavue::test::ReplacedMethod<&swallow> replaced(SBControlCenterController::cls(),
                                                         "presentAnimated:");
  fling(bottom_edge(), {middle().x, 250}, 0.3);
  settle();
  EXPECT_FALSE(is_open());
  EXPECT_FALSE(control_centre().sheet());
}

TEST_F(ControlCentreTest, APullThatBeginsAboveTheEdgeIsIgnored) {
  fling({middle().x, screen().height - 14}, {middle().x, 250}, 0.3);
  settle();
  EXPECT_FALSE(is_open());
}

TEST_F(ControlCentreTest, APullAlongTheEdgeIsIgnored) {
  fling({100, screen().height - 3}, {300, screen().height - 100}, 0.3);
  settle();
  EXPECT_FALSE(is_open());
}

TEST_F(ControlCentreTest, AFingerThatWentSidewaysStaysWithItsView) {
  const SBIconView phone = icon_view(kPhone);
  const CGFloat x = on_screen(phone).x;
  press({x, screen().height - 9});
  move({x + 9, screen().height - 9});
  move({x + 9, 300});
  EXPECT_FALSE(is_open());
  EXPECT_TRUE(phone.isHighlighted());
  lift();
  settle();
  EXPECT_FALSE(is_open());
}

TEST_F(ControlCentreTest, TheIconUnderThePullHasItsTouchCancelled) {
  // At the very bottom, the finger is on the edge and on an icon of the dock.
  const SBIconView phone = icon_view(kPhone);
  const CGFloat x = on_screen(phone).x;
  press({x, screen().height - 9});
  move({x, screen().height - 40});
  EXPECT_FALSE(phone.isHighlighted());
  EXPECT_TRUE(is_open());
}

TEST_F(ControlCentreTest, ItMayBeDismissedUnderAFinger) {
  fling(bottom_edge(), {middle().x, 250}, 0.3);
  settle();
  const CGFloat top = screen().height - seen();
  press({middle().x, top + 10});
  {
    const objc::AutoreleasePool pool;
    SBControlCenterController::sharedInstance().dismissAnimated(NO);
  }
  move({middle().x, top + 60});
  move({middle().x, top + 90});
  lift();
  settle();
  EXPECT_FALSE(is_open());
  EXPECT_FALSE(control_centre().sheet());
}

TEST_F(ControlCentreTest, ATapAboveClosesIt) {
  present_control_centre();
  settle();
  tap({middle().x, 60});
  settle();
  EXPECT_FALSE(is_open());
  EXPECT_FALSE(control_centre().sheet());
}

TEST_F(ControlCentreTest, APullDownClosesIt) {
  present_control_centre();
  settle();
  const CGFloat top = top_of(control_centre().sheet());
  fling({middle().x, top + 10}, {middle().x, screen().height - 20}, 0.2);
  settle();
  EXPECT_FALSE(is_open());
}

TEST_F(ControlCentreTest, TheHomeButtonClosesItAndNothingElse) {
  SBIconController::sharedInstance().scrollToIconListAtIndex(1, NO);
  present_control_centre();
  settle();
  press_home();
  settle();
  EXPECT_FALSE(is_open());
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 1);
}

TEST_F(ControlCentreTest, TheBrightnessSliderDimsTheScreenAndDoesNotMoveTheSheet) {
  present_control_centre();
  settle();
  const CGFloat top = top_of(control_centre().sheet());
  fling({300, top + 129}, {200, top + 150}, 0.3);
  settle();
  EXPECT_LT(display().brightness(), 0.7);
  EXPECT_GT(display().brightness(), 0.4);
  EXPECT_TRUE(is_open());
  EXPECT_EQ(top_of(control_centre().sheet()), top);
}

}  // namespace
}  // namespace host::springboard
