#include "host/springboard/surfaces/window_levels.h"
#include "host/uikit/view/window_list.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "tests/host/springboard/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class ReachabilityTest : public SurfaceTest {
 protected:
  bool is_active() const {
    return SBReachabilityManager::sharedInstance().reachabilityModeActive();
  }
};

TEST_F(ReachabilityTest, TheIconsComeDownToTheThumb) {
  const CGFloat before = on_screen(kMusic).y;
  toggle_reachability();
  settle();
  press({on_screen(kCalendar).x, on_screen(kCalendar).y + screen().height * 0.4});
  EXPECT_TRUE(icon_view(kCalendar).isHighlighted());
  EXPECT_TRUE(is_at_rest());
  lift();
  toggle_reachability();
  settle();
  EXPECT_EQ(on_screen(kMusic).y, before);
}

TEST_F(ReachabilityTest, ItGoesBackByItselfAfterEightSeconds) {
  toggle_reachability();
  advance(7.9);
  EXPECT_TRUE(is_active());
  advance(0.2);
  EXPECT_FALSE(is_active());
}

TEST_F(ReachabilityTest, ATapAboveTheScreenSendsItBack) {
  toggle_reachability();
  settle();
  tap({middle().x, 100});
  settle();
  EXPECT_FALSE(is_active());
  press(on_screen(kCalendar));
  EXPECT_TRUE(icon_view(kCalendar).isHighlighted());
}

TEST_F(ReachabilityTest, TheWallpaperLiesBehindAndGoesWithIt) {
  const auto count = uikit::visible_windows().size();
  toggle_reachability();
  settle();
  EXPECT_EQ(uikit::visible_windows().front().windowLevel(), kBehindScreenLevel);
  EXPECT_EQ(CGRect(uikit::visible_windows().front().frame()).min_y(), 0);
  toggle_reachability();
  settle();
  EXPECT_EQ(uikit::visible_windows().size(), count);
}

TEST_F(ReachabilityTest, TwoTouchesOfHomeBringTheScreenDownAndLetItGo) {
  EXPECT_TRUE(double_touch_home());
  EXPECT_TRUE(is_active());
  EXPECT_TRUE(double_touch_home());
  EXPECT_FALSE(is_active());
}

TEST_F(ReachabilityTest, NotOnALockedOrADarkPhone) {
  press_lock();
  EXPECT_TRUE(double_touch_home());
  EXPECT_FALSE(display().is_on());
  press_lock();
  EXPECT_TRUE(double_touch_home());
  EXPECT_FALSE(is_active());
}

}  // namespace
}  // namespace host::springboard
