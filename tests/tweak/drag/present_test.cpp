#include "host/springboard/system/system_actions.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/tweak/drag/drag_test.h"
#include "tests/tweak/method_spy.h"

namespace host::test {
namespace {

constexpr double kGlide = 0.1f;
constexpr double kIconTravel = 0.5;
constexpr double kContentFade = 0.7;

class Release : public DragTest {
 protected:
  /// Drags and releases during a steady movement. Returns the pan's velocity.
  CGPoint release_in_motion() {
    begin_drag();
    for (int step = 0; step < 12; ++step)
      move_by(2, -6);
    const auto pan =
        objc::cast<UIPanGestureRecognizer>(music_icon().gestureRecognizers().firstObject());
    const CGPoint velocity = pan.velocityInView(music_icon());
    lift();
    return velocity;
  }

  CGPoint place_at_top() const {
    const CGFloat list_height = music_icon().superview().frame().size.height;
    const CGFloat x = (screen().width - music_icon().frame().size.width) / 2;
    return {x,
            music_icon().isInDock() ? (screen().height - list_height) * -9 / 10 : list_height / 10};
  }
};
SONAVUE_ON_EVERY_SCREEN(Release);

TEST_P(Release, TheIconGlidesByATenthOfTheVelocity) {
  begin_drag();
  move_by(0, -30);
  const CGPoint before = {music_icon().frame().origin.x + 2 * 12,
                          music_icon().frame().origin.y - 6 * 12};
  for (int step = 0; step < 12; ++step)
    move_by(2, -6);
  ASSERT_THAT(music_icon().frame().origin, IsNear(before));
  const auto pan =
      objc::cast<UIPanGestureRecognizer>(music_icon().gestureRecognizers().firstObject());
  const CGPoint velocity = pan.velocityInView(music_icon());
  ASSERT_GT(velocity.x, 50);
  ASSERT_LT(velocity.y, -150);
  lift();
  EXPECT_THAT(music_icon().frame().origin,
              IsNear(CGPoint{before.x + velocity.x / 10, before.y + velocity.y / 10}));
}

TEST_P(Release, TheTwinIsFivePointsBesideTheGlidingIcon) {
  release_in_motion();
  const CGPoint icon = music_icon().frame().origin;
  EXPECT_THAT(frame("music").origin, IsNear(CGPoint{icon.x + 5, icon.y + icon_offset()}));
  EXPECT_EQ(frame("music").size, music_icon().frame().size);
}

TEST_P(Release, TheBackdropFadesToTheValueAtTheGlidesEnd) {
  MethodSpy<"setAlpha:", void(UIImageView, CGFloat)> faded(UIImageView::cls());
  release_in_motion();
  const CGFloat height = screen().height;
  // Not clamped to 1: an icon in the dock has a small or negative y.
  EXPECT_THAT(std::get<0>(faded.last()),
              IsNear((height - music_icon().frame().origin.y) / (0.75 * height)));
}

TEST_P(Release, GlideTravelAndFadeHaveTheirDurations) {
  release_in_motion();
  const auto has_arrived = [this] { return is_near(music_icon().frame().origin, place_at_top()); };
  EXPECT_THAT(seconds_until(has_arrived), IsSoonAfter(kGlide));
  EXPECT_FALSE(view("music").isHidden());
  EXPECT_TRUE(view("window").isUserInteractionEnabled());
  EXPECT_EQ(alpha("cover"), 1);
  EXPECT_EQ(alpha("container"), 0);
  EXPECT_THAT(seconds_until([this] { return alpha("container") == 1; }), IsSoonAfter(kIconTravel));
  EXPECT_FALSE(is("isShow"));
  EXPECT_THAT(seconds_until([this] { return is("isShow"); }), IsSoonAfter(kContentFade));
}

TEST_P(Release, TheIconSettlesAtTheTopCentreWithTheTwinOverIt) {
  release_in_motion();
  settle();
  EXPECT_THAT(music_icon().frame().origin, IsNear(place_at_top()));
  EXPECT_THAT(frame("music"), IsNear(icon_on_screen()));
  EXPECT_THAT(frame("music").centre().x, IsNear(screen().width / 2));
}

TEST_P(Release, AMovementOfOnePointStillOpens) {
  begin_drag();
  move_by(0, -1);
  lift();
  EXPECT_THAT(seconds_until([this] { return is("isShow"); }),
              IsSoonAfter(kGlide + kIconTravel + kContentFade));
}

class Present : public PanelTest {};

TEST_F(Present, OpeningDismissesTheControlCentreAtTheEnd) {
  launch();
  MethodSpy<"dismissAnimated:", void(SBControlCenterController, BOOL)> dismissed(
      SBControlCenterController::cls());
  begin_drag();
  lift();
  ASSERT_GE(seconds_until([this] { return alpha("container") == 1; }), 0);
  EXPECT_EQ(dismissed.count(), 0);
  ASSERT_GE(seconds_until([this] { return is("isShow"); }), 0);
  EXPECT_EQ(dismissed.count(), 1);
  EXPECT_EQ(std::get<0>(dismissed.last()), YES);
}

TEST_F(Present, TheTwinIsShownInAWindowThatCoversTheScreenAndTakesTouches) {
  launch();
  view("window").setFrame({0, -50, screen().width, screen().height});
  view("window").setUserInteractionEnabled(NO);
  objc::send<>(application, "present"_sel);
  EXPECT_EQ(frame("window"), (CGRect{0, 0, screen().width, screen().height}));
  EXPECT_FALSE(view("music").isHidden());
  EXPECT_TRUE(view("window").isUserInteractionEnabled());
}

TEST_F(Present, TheBannerLeavesTheIconInItsSlotWithTheTwinOverIt) {
  launch();
  const CGRect home = music_icon().frame();
  global<BOOL>("isBanner") = YES;
  objc::send<>(application, "present"_sel);
  settle();
  EXPECT_EQ(music_icon().frame(), home);
  EXPECT_THAT(frame("music").origin, IsNear(CGPoint{home.origin.x, home.origin.y + icon_offset()}));
}

TEST_F(Present, DoesNotOpenWhileIconsAreArranged) {
  launch();
  springboard::set_editing(true);
  advance(0.2);
  objc::send<>(application, "present"_sel);
  settle();
  EXPECT_TRUE(view("music").isHidden());
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_FALSE(is("isShow"));
}

}  // namespace
}  // namespace host::test
