#include "host/springboard/system/unrest.h"

#include <gmock/gmock.h>

#include "platform/UIKit/UIWindow.h"
#include "tests/host/springboard/support/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

class Unrest : public SurfaceTest {
 protected:
  void SetUp() override {
    SurfaceTest::SetUp();
    settle();
    ASSERT_THAT(reasons_for_unrest(), IsEmpty());
  }
  void expect(const char* reason) {
    EXPECT_THAT(reasons_for_unrest(), Contains(HasSubstr(reason)));
  }
  void expect_rest() { EXPECT_THAT(reasons_for_unrest(), IsEmpty()); }
};

TEST_F(Unrest, SurfacesAreNamedUntilTheyAreClosed) {
  present_control_centre();
  settle();
  expect("the control centre is open");
  expect("takes touches");
  press_home();
  settle();
  expect_rest();
  lock();
  expect("the display is off");
  expect("the phone is locked");
  unlock();
  settle();
  expect_rest();
  set_editing(true);
  expect("the icons are being arranged");
  set_editing(false);
  settle();
  expect_rest();
}

TEST_F(Unrest, ApplicationsAreNamed) {
  ASSERT_TRUE(open(kCalculator));
  settle();
  expect("an application is in front: com.apple.calculator");
  press_home();
  settle();
  expect_rest();
}

TEST_F(Unrest, AFingerIsNoticedAnywhere) {
  press(on_screen(kCalendar));
  expect("a finger is on SBIconView");
  lift();
  settle();
  press_home();
  settle();
  expect_rest();
  press(middle());
  expect("a finger is on");
  lift();
  settle();
  expect_rest();
}

TEST_F(Unrest, AnIconMustBeInItsSlotAndWithinReach) {
  const SBIconView view = icon_view(kMusic);
  const CGRect slot = view.frame();
  view.setFrame({{slot.origin.x + 1, slot.origin.y}, slot.size});
  expect("com.apple.Music is not in its slot");
  view.setFrame(slot);
  expect_rest();
  view.setUserInteractionEnabled(NO);
  expect("a finger on com.apple.Music is on SBIconListView");
  view.setUserInteractionEnabled(YES);
  expect_rest();
}

TEST_F(Unrest, AWindowThatTakesTouchesIsInTheWay) {
  const auto window = objc::Ref<UIWindow>::adopt(UIWindow::alloc().initWithFrame({0, 0, 100, 60}));
  window->setWindowLevel(1500);
  window->setHidden(NO);
  expect("UIWindow of level 1500 takes touches at {20, 20}");
  window->setUserInteractionEnabled(NO);
  expect_rest();
  window->setHidden(YES);
}

TEST_F(Unrest, AnimationsAreNamed) {
  const SBIconView view = icon_view(kMusic);
  UIView::animateWithDuration(1, objc::block([view] { view.setAlpha(0.5); }));
  expect("SBIconView is animated");
  advance(1.1);
  view.setAlpha(1);
  expect_rest();
}

}  // namespace
}  // namespace host::springboard
