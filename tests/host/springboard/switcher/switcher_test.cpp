#include "host/quartzcore/drawing/image.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/window_levels.h"
#include "host/springboard/switcher/app_switcher.h"
#include "host/springboard/switcher/recent_applications.h"
#include "host/springboard/switcher/screen_picture.h"
#include "host/springboard/system/spring_board_application.h"
#include "host/uikit/geometry/window_list.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "platform/SpringBoard/SBUIController.h"
#include "tests/host/springboard/support/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;
using Bundles = std::vector<std::string>;

class SwitcherTest : public SurfaceTest {
 protected:
  bool is_showing() { return SBUIController::sharedInstance().isAppSwitcherShowing(); }
  void call_up() {
    const objc::AutoreleasePool pool;
    double_press_home();
    settle();
  }
  void open_and_leave(const char* bundle) {
    const objc::AutoreleasePool pool;
    open(bundle);
    settle();
    press_home();
    settle();
  }
  const SwitcherCard* card(const std::string& bundle) { return app_switcher().row()->card(bundle); }
  CGPoint centre(const std::string& bundle) {
    const UIView view = card(bundle)->screen();
    return view.convertPointToView(view.bounds().centre(), nil);
  }
  void throw_up(const std::string& bundle) {
    const CGPoint from = centre(bundle);
    fling(from, {from.x + 4, from.y - 300}, 0.2);
    settle();
  }
  int windows_of_switcher() {
    int count = 0;
    for (const UIWindow window : uikit::visible_windows())
      count += window.windowLevel() == kSwitcherLevel ? 1 : 0;
    return count;
  }
};

TEST_F(SwitcherTest, ADoublePressShowsItWithTheHomeScreensCard) {
  call_up();
  EXPECT_TRUE(is_showing());
  EXPECT_EQ(app_switcher().row()->count(), 1u);
  EXPECT_NEAR(centre("").x, middle().x, 0.5);
  EXPECT_TRUE(is_at_rest());
}

std::string pixels_of(UIImage image) {
  const auto surface = quartzcore::image_of(image.CGImage())->surface();
  const auto bytes = reinterpret_cast<const char*>(cairo_image_surface_get_data(surface.get()));
  return {bytes, static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get())) *
                     static_cast<std::size_t>(cairo_image_surface_get_height(surface.get()))};
}

TEST_F(SwitcherTest, TheHomeScreensCardHasItsOwnLightStatusBar) {
  const std::string light = pixels_of(picture_of_home());
  set_status_bar_dark(true);
  EXPECT_TRUE(pixels_of(picture_of_home()) == light);
  // Over an application it keeps the application's colour.
  EXPECT_FALSE(pixels_of(picture_of_front()) == light);
  EXPECT_TRUE(set_status_bar_dark(false));
}

TEST_F(SwitcherTest, ItZoomsOutOfTheWholeScreen) {
  double_press_home();
  const UIView screen = card("")->screen();
  const CGRect seen = screen.convertRectToView(screen.bounds(), nil);
  EXPECT_LT(seen.size.width, 0.6 * this->screen().width);
  const UIView row = app_switcher().row()->view();
  const CALayer shown = row.layer().presentationLayer();
  ASSERT_TRUE(shown);
  EXPECT_NEAR(CGRect(shown.frame()).size.width, this->screen().width / 0.54, 3);
  settle();
}

TEST_F(SwitcherTest, HomeDismissesItAndNothingIsLeft) {
  call_up();
  press_home();
  EXPECT_FALSE(is_showing());
  settle();
  EXPECT_EQ(windows_of_switcher(), 0);
  EXPECT_TRUE(is_at_rest());
}

TEST_F(SwitcherTest, AnotherDoublePressDismissesIt) {
  call_up();
  call_up();
  EXPECT_FALSE(is_showing());
  EXPECT_EQ(windows_of_switcher(), 0);
}

TEST_F(SwitcherTest, ShownAgainWhileItLeavesItStays) {
  call_up();
  press_home();
  advance(0.2);
  call_up();
  EXPECT_TRUE(is_showing());
  EXPECT_EQ(windows_of_switcher(), 1);
}

TEST_F(SwitcherTest, ItDoesNotOpenWhileThePhoneIsLocked) {
  press_lock();
  press_lock();
  call_up();
  EXPECT_FALSE(is_showing());
  EXPECT_EQ(windows_of_switcher(), 0);
}

TEST_F(SwitcherTest, LockingSendsItAway) {
  call_up();
  press_lock();
  EXPECT_FALSE(is_showing());
  EXPECT_EQ(windows_of_switcher(), 0);
}

TEST_F(SwitcherTest, ItClosesTheControlCentre) {
  present_control_centre();
  settle();
  call_up();
  EXPECT_TRUE(is_showing());
  EXPECT_FALSE(control_centre().is_presented());
}

TEST_F(SwitcherTest, TouchesOfHomeDoNotMoveItDown) {
  call_up();
  double_touch_home();
  EXPECT_FALSE(SBReachabilityManager::sharedInstance().reachabilityModeActive());
  EXPECT_TRUE(is_showing());
}

TEST_F(SwitcherTest, ApplicationsFollowTheHomeScreenTheLatestFirst) {
  open_and_leave(kCalendar);
  open_and_leave(kPhotos);
  open_and_leave(kCalendar);
  EXPECT_EQ(recent_applications().all(), (Bundles{kCalendar, kPhotos}));
  call_up();
  EXPECT_NEAR(centre("").x, middle().x, 0.5);
  EXPECT_GT(centre(kCalendar).x, centre("").x);
  EXPECT_GT(centre(kPhotos).x, centre(kCalendar).x);
}

TEST_F(SwitcherTest, TheApplicationInFrontIsInTheMiddleAndStaysInFront) {
  open(kCalendar);
  settle();
  call_up();
  EXPECT_NEAR(centre(kCalendar).x, middle().x, 0.5);
  EXPECT_TRUE(recent_applications().picture(kCalendar));
  press_home();
  settle();
  EXPECT_EQ(shown_now(), Shown::Application);
}

TEST_F(SwitcherTest, ATapOnACardOpensIt) {
  open_and_leave(kCalendar);
  open_and_leave(kPhotos);
  call_up();
  tap({screen().width - 20, centre(kPhotos).y});
  settle();
  EXPECT_FALSE(is_showing());
  EXPECT_EQ(shown_now(), Shown::Application);
  EXPECT_EQ(recent_applications().front(), kPhotos);
  EXPECT_EQ(windows_of_switcher(), 0);
}

TEST_F(SwitcherTest, ATapOnTheHomeCardLeavesTheApplication) {
  open(kCalendar);
  settle();
  call_up();
  tap({20, centre("").y});
  settle();
  EXPECT_FALSE(is_showing());
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
}

TEST_F(SwitcherTest, ATapOutsideTheCardsGoesBack) {
  call_up();
  tap({middle().x, screen().height - 30});
  settle();
  EXPECT_FALSE(is_showing());
}

TEST_F(SwitcherTest, TheRowStopsWithACardInTheMiddle) {
  open_and_leave(kCalendar);
  open_and_leave(kPhotos);
  call_up();
  drag({300, 300}, {170, 302}, 0.4, 0.3);
  lift();
  settle();
  EXPECT_NEAR(centre(kPhotos).x, middle().x, 0.5);
}

TEST_F(SwitcherTest, ACardThrownUpClosesItsApplication) {
  open_and_leave(kCalendar);
  open_and_leave(kPhotos);
  call_up();
  // Replaces the function that ends processes.
  Bundles closed;
  recent_applications().on_close([&](const std::string& bundle) { closed.push_back(bundle); });
  const CGPoint next{screen().width - 20, centre(kPhotos).y};
  fling(next, {next.x + 4, next.y - 300}, 0.2);
  settle();
  EXPECT_EQ(closed, Bundles{kPhotos});
  EXPECT_EQ(recent_applications().all(), Bundles{kCalendar});
  EXPECT_TRUE(is_showing());
  EXPECT_EQ(app_switcher().row()->count(), 2u);
  // The next card has closed the gap.
  EXPECT_NEAR(centre(kCalendar).x - centre("").x, card("")->screen().frame().size.width + 22, 0.5);
  EXPECT_TRUE(is_at_rest());
}

TEST_F(SwitcherTest, ACardThatIsLiftedSlightlyFallsBack) {
  open(kCalendar);
  settle();
  call_up();
  const CGPoint from = centre(kCalendar);
  drag(from, {from.x, from.y - 60}, 0.4, 0.3);
  EXPECT_NEAR(centre(kCalendar).y, from.y - 60, 1);
  lift();
  settle();
  EXPECT_EQ(centre(kCalendar).y, from.y);
  EXPECT_TRUE(recent_applications().contains(kCalendar));
}

TEST_F(SwitcherTest, TheApplicationInFrontIsLeftWhenItIsThrownAway) {
  open(kCalendar);
  settle();
  call_up();
  throw_up(kCalendar);
  EXPECT_TRUE(is_showing());
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
  EXPECT_NEAR(centre("").x, middle().x, 0.5);
  press_home();
  settle();
  EXPECT_EQ(windows_of_switcher(), 0);
}

TEST_F(SwitcherTest, TheHomeScreensCardCannotBeThrownAway) {
  call_up();
  const CGFloat before = centre("").y;
  throw_up("");
  ASSERT_TRUE(card(""));
  EXPECT_NEAR(centre("").y, before, 0.5);
  EXPECT_EQ(app_switcher().row()->count(), 1u);
}

TEST_F(SwitcherTest, AnUninstalledApplicationHasNoCard) {
  open_and_leave(kCalculator);
  uninstall(kCalculator);
  call_up();
  EXPECT_EQ(app_switcher().row()->count(), 1u);
}

TEST_F(SwitcherTest, PicturesAreKeptOnlyForRecentApplications) {
  const objc::AutoreleasePool pool;
  RecentApplications recent;
  const UIImage image = icon(kCalendar).generateIconImage(SBIconImageFormatHomeScreen);
  recent.came_to_front("one");
  recent.keep_picture("one", image);
  recent.keep_picture("two", image);
  EXPECT_TRUE(recent.picture("one"));
  EXPECT_FALSE(recent.picture("two"));
  recent.forget("one");
  EXPECT_EQ(recent.front(), "");
  EXPECT_FALSE(recent.picture("one"));
  EXPECT_TRUE(recent.all().empty());
}

TEST(RecentApplicationsTest, OnlyARecentApplicationIsClosed) {
  RecentApplications recent;
  int closed = 0;
  recent.on_close([&](const std::string&) { ++closed; });
  recent.close("one");
  EXPECT_EQ(closed, 0);
  recent.came_to_front("one");
  recent.close(recent.all().front());
  EXPECT_EQ(closed, 1);
}

}  // namespace
}  // namespace host::springboard
