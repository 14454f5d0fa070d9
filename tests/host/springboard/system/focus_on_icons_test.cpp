#include <gmock/gmock.h>

#include "host/uikit/focus/focus.h"
#include "tests/host/springboard/support/surface_fixture.h"

namespace host::springboard {
namespace {

using namespace test;

class FocusOnIcons : public SurfaceTest {
 protected:
  void SetUp() override {
    SurfaceTest::SetUp();
    settle();
  }
  void TearDown() override {
    focus.end();
    SurfaceTest::TearDown();
  }

  uikit::Focus focus{loop};
};

TEST_F(FocusOnIcons, KeysWalkOverIconsAndTurnThePage) {
  EXPECT_TRUE(press_key("tab"));
  EXPECT_EQ(focus.view(), icon_view(kCalendar));
  press_key("right");
  EXPECT_EQ(focus.view(), icon_view(kPhotos));
  press_key("down");
  press_key("up");
  EXPECT_EQ(focus.view(), icon_view(kPhotos));
  // Two more icons are in the row, and then there is the next page.
  for (int i = 0; i < 3; ++i)
    press_key("right");
  settle();
  EXPECT_EQ(SBIconController::sharedInstance().currentIconListIndex(), 1);
  ASSERT_TRUE(focus.view());
  EXPECT_TRUE(focus.view().isKindOfClass(SBIconView::cls()));
  EXPECT_TRUE(focus.ring());
}

TEST_F(FocusOnIcons, OnlyWhatIsInFrontHasStops) {
  present_control_centre();
  settle();
  press_key("tab");
  ASSERT_TRUE(focus.view());
  EXPECT_FALSE(focus.view().isKindOfClass(SBIconView::cls()));
  lock();
  settle();
  EXPECT_FALSE(focus.ring());
  EXPECT_FALSE(press_key("tab")) << "a dark display takes no touches";
}

TEST_F(FocusOnIcons, AfterItsEndItBeginsAgainAtTheFirstIcon) {
  press_key("tab");
  press_key("right");
  end_focus();
  EXPECT_FALSE(focus.ring());
  press_key("right");
  EXPECT_EQ(focus.view(), icon_view(kCalendar));
}

}  // namespace
}  // namespace host::springboard
