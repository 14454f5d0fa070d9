#include "host/springboard/parts/window_levels.h"
#include "host/uikit/view/responder.h"
#include "platform/UIKit/UITextField.h"
#include "tests/host/springboard/support/surface_fixture.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/recording_view.h"
#include "tests/tweak/method_spy.h"

namespace host::springboard {
namespace {

using namespace test;
using Events = UIKitTest::Events;
using uikit::TouchInput;

constexpr int kOther = 7;

/// An action of the phone while fingers are on the screen.
struct Deed {
  const char* name;
  void (*before)();
  void (*act)(TouchInput& fingers, double now);
};

void PrintTo(const Deed& deed, std::ostream* out) {
  *out << deed.name;
}

/// A window over a part of the screen, like one of an extension, with a view that records all
/// touches.
class TakenFingers : public SurfaceTest {
 protected:
  void SetUp() override {
    SurfaceTest::SetUp();
    window_ =
        objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame({0, 100, screen().width, 200}));
    window_->setWindowLevel(UIWindowLevelStatusBar + 500);
    view_ = RecordingView::make("view", window_->bounds());
    window_->addSubview(view_);
    window_->setHidden(NO);
    UIKitTest::told();
  }
  void TearDown() override {
    touches.cancel_all(clock.now());
    window_->setHidden(YES);
    window_.reset();
  }

  UIWindow window() const { return *window_; }
  UIView view() const { return view_; }
  CGPoint on_view() const { return {100, 200}; }
  void add_pan() { RecordingTarget::add<UIPanGestureRecognizer>(view_, *pan_); }

 private:
  objc::Ref<UIWindow> window_;
  UIView view_;
  objc::Ref<TestTarget> pan_ = RecordingTarget::make("pan");
};

class EveryDeed : public TakenFingers, public ::testing::WithParamInterface<Deed> {};

TEST_P(EveryDeed, CancelsTheFingersAndIgnoresThemUntilTheyLift) {
  if (GetParam().before) GetParam().before();
  settle();
  UIKitTest::told();
  press(on_view());
  advance(0.1);
  ASSERT_EQ(UIKitTest::told(), Events{"view began"});
  GetParam().act(touches, clock.now());
  EXPECT_EQ(UIKitTest::told(), Events{"view cancelled"});
  move({150, 220});
  lift();
  EXPECT_EQ(UIKitTest::told(), Events{}) << "lifted late";
}

TEST_P(EveryDeed, CancelsADragThatHasBegun) {
  if (GetParam().before) GetParam().before();
  settle();
  add_pan();
  UIKitTest::told();
  press(on_view());
  move({150, 200});
  ASSERT_EQ(UIKitTest::told(), (Events{"view began", "view cancelled", "pan began"}));
  GetParam().act(touches, clock.now());
  EXPECT_EQ(UIKitTest::told(), Events{"pan cancelled"});
  move({150, 260});
  lift();
  EXPECT_EQ(UIKitTest::told(), Events{});
}

void open_calendar() {
  open(kCalendar);
}
void lock_and_wake() {
  lock();
  press_home();
}

INSTANTIATE_TEST_SUITE_P(
    , EveryDeed,
    ::testing::Values(
        Deed{"Locking", nullptr, [](TouchInput&, double) { lock(); }},
        Deed{"TheLockButton", nullptr, [](TouchInput&, double) { press_lock(); }},
        Deed{"TheDisplayTurningOffWhenLocked", lock_and_wake, [](TouchInput&, double) { lock(); }},
        Deed{"Unlocking", lock_and_wake, [](TouchInput&, double) { unlock(); }},
        Deed{"AnApplicationThatOpens", nullptr, [](TouchInput&, double) { open_calendar(); }},
        Deed{"HomeOverAnApplication", open_calendar, [](TouchInput&, double) { press_home(); }},
        Deed{"HomeOnTheHomeScreen", nullptr, [](TouchInput&, double) { press_home(); }},
        Deed{"TheSwitcher", nullptr, [](TouchInput&, double) { double_press_home(); }},
        Deed{"TheControlCentre", nullptr, [](TouchInput&, double) { present_control_centre(); }},
        Deed{"TheNotificationCentre", nullptr,
             [](TouchInput&, double) { present_notification_centre(); }},
        Deed{"Reachability", nullptr, [](TouchInput&, double) { double_touch_home(); }},
        Deed{"AnotherFingerThatPullsFromTheEdge", nullptr,
             [](TouchInput& fingers, double now) {
               fingers.began(kOther, {300, 665}, now);
               fingers.moved(kOther, {300, 600}, now);
             }}),
    [](const auto& deed) { return std::string(deed.param.name); });

TEST_F(TakenFingers, TheyAreCancelledBeforeTheLockIsNotified) {
  const MethodSpy<"_handleDisplayTurnedOff", void(SBLockScreenViewController)> locks(
      SBLockScreenViewController::cls(), &UIKitTest::events());
  press(on_view());
  lock();
  EXPECT_EQ(UIKitTest::told(), (Events{"view began", "view cancelled", "_handleDisplayTurnedOff"}));
}

TEST_F(TakenFingers, TheyAreCancelledBeforeTheUnlockIsNotified) {
  lock_and_wake();
  const MethodSpy<"prepareForUIUnlock", void(SBLockScreenViewController)> unlocks(
      SBLockScreenViewController::cls(), &UIKitTest::events());
  touches.began(kOther, on_view(), clock.now());
  fling({60, 500}, {330, 505}, 0.3);
  EXPECT_EQ(UIKitTest::told(), (Events{"view began", "view cancelled", "prepareForUIUnlock"}));
}

TEST_F(TakenFingers, TheyAreCancelledBeforeTheNotificationCentreIsNotified) {
  const MethodSpy<"hostWillPresent", void(SBNotificationCenterViewController)> comes(
      SBNotificationCenterViewController::cls(), &UIKitTest::events());
  touches.began(kOther, on_view(), clock.now());
  fling({300, 3}, {300, 80}, 0.1);
  EXPECT_EQ(UIKitTest::told(), (Events{"view began", "view cancelled", "hostWillPresent"}));
}

TEST_F(TakenFingers, AnIconReleasedInTheDarkOpensNothing) {
  window().setHidden(YES);
  press(on_screen(kCalendar));
  advance(0.1);
  lock();
  EXPECT_FALSE(icon_view(kCalendar).isHighlighted());
  lift();
  unlock();
  settle();
  EXPECT_EQ(shown_now(), Shown::HomeScreen);
}

TEST_F(TakenFingers, AnIconStillHeldInTheDarkDoesNotStartEditing) {
  window().setHidden(YES);
  press(on_screen(kCalendar));
  advance(0.3);
  lock();
  advance(1);
  EXPECT_FALSE(SBIconController::sharedInstance().isEditing());
}

TEST_F(TakenFingers, AnIconStillDraggedInTheDarkLandsAtItsTarget) {
  window().setHidden(YES);
  set_editing(true);
  const CGPoint photos = on_screen(kPhotos);
  drag(on_screen(kCalendar), {photos.x + 24, photos.y}, 0.3, 0.5);
  lock();
  lift();
  unlock();
  settle();
  EXPECT_EQ(on_screen(kCalendar), photos);
  EXPECT_FALSE(SBIconController::sharedInstance().isEditing());
}

TEST_F(TakenFingers, NoViewReceivesAFingerOnADarkDisplay) {
  window().setWindowLevel(kDisplayOffLevel + 1);
  lock();
  tap(on_view());
  press(on_view());
  press_home();
  move({120, 210});
  lift();
  EXPECT_EQ(UIKitTest::told(), Events{});
  tap(on_view());
  EXPECT_EQ(UIKitTest::told(), (Events{"view began", "view ended"}));
}

TEST_F(TakenFingers, LockingEndsTextInput) {
  const auto field = UITextField::alloc().initWithFrame({0, 0, 200, 30}).autorelease();
  view().addSubview(field);
  field.becomeFirstResponder();
  ASSERT_TRUE(uikit::first_responder());
  lock();
  EXPECT_FALSE(uikit::first_responder());
  press_home();
  EXPECT_TRUE(field.becomeFirstResponder()) << "something on the lock screen may take text";
  lock();
  EXPECT_FALSE(uikit::first_responder());
}

TEST_F(TakenFingers, ABannerPulledWhileAnApplicationOpensDoesNotOpenTheCentre) {
  window().setHidden(YES);
  present_banner("Rain at noon");
  advance(1);
  drag({150, 30}, {150, 110}, 0.2);
  open(kCalendar);
  EXPECT_FALSE(notification_centre().is_presented());
  EXPECT_TRUE(banners().is_showing_banner());
  lift();
  advance(7);
  EXPECT_FALSE(banners().is_showing_banner()) << "it leaves by itself as usual";
}

TEST_F(TakenFingers, AnEdgePullIsCancelledWhenTheDisplayTurnsOff) {
  drag(bottom_edge(), {middle().x, 300}, 0.2);
  ASSERT_TRUE(control_centre().is_presented());
  lock();
  EXPECT_FALSE(control_centre().is_presented());
  move({middle().x, 200});
  lift();
  unlock();
  settle();
  EXPECT_FALSE(control_centre().is_presented());
  fling(bottom_edge(), {middle().x, 250}, 0.3);
  settle();
  EXPECT_TRUE(control_centre().is_presented()) << "the next finger pulls as usual";
}

}  // namespace
}  // namespace host::springboard
