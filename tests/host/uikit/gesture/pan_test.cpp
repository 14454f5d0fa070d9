#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

class PanTest : public UIKitTest {
 protected:
  PanTest()
      : view(RecordingView::make("view", {0, 0, 300, 300})),
        target(RecordingTarget::make("pan")),
        pan(RecordingTarget::add<UIPanGestureRecognizer>(view, target.get())) {
    window.addSubview(view);
    told();
    objc::state_of<RecordingTarget>(target.get()).on_gesture = [this](UIGestureRecognizer) {
      translation = pan.translationInView(window);
      velocity = pan.velocityInView(window);
      location = pan.locationInView(view);
    };
  }

  TestRecordingView view;
  objc::Ref<TestTarget> target;
  UIPanGestureRecognizer pan;
  CGPoint translation;
  CGPoint velocity;
  CGPoint location;
};

TEST_F(PanTest, BeginsOnlyPastItsThreshold) {
  press({50, 50});
  move({59.9, 50});
  EXPECT_EQ(told(), (Events{"view began", "view moved"}));
  EXPECT_EQ(pan.state(), UIGestureRecognizerStatePossible);
  move({60, 50});
  EXPECT_EQ(told(), (Events{"view cancelled", "pan began"}));
  EXPECT_EQ(translation, (CGPoint{10, 0})) << "the way to the threshold counts";
}

TEST_F(PanTest, AMovementOfOnePointAfterItHasBegunIsReportedAndSoIsItsEnd) {
  press({50, 50});
  move({60, 50});
  move({61, 50});
  lift({61, 50});
  EXPECT_EQ(told(),
            (Events{"view began", "view cancelled", "pan began", "pan changed", "pan ended"}));
  EXPECT_EQ(translation, (CGPoint{11, 0}));
  EXPECT_EQ(pan.state(), UIGestureRecognizerStatePossible) << "ready for the next one";
}

TEST_F(PanTest, ATouchThatHardlyMovesReachesTheView) {
  press({50, 50});
  move({53, 50});
  lift({53, 50});
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view ended"}));
}

TEST_F(PanTest, OneLongStepBeginsIt) {
  press({50, 50});
  lift({50, 150});
  EXPECT_EQ(told(), (Events{"view began", "view cancelled", "pan began", "pan ended"}));
}

TEST_F(PanTest, VelocityIsThatOfTheSteadyFinger) {
  press({50, 50});
  glide({50, 50}, {50, 250}, 0.5);
  lift({50, 250});
  EXPECT_NEAR(velocity.x, 0, 1e-6);
  EXPECT_NEAR(velocity.y, 400, 1);
}

TEST_F(PanTest, APauseBeforeReleaseLeavesNoVelocity) {
  press({50, 50});
  glide({50, 50}, {50, 250}, 0.2);
  advance(0.15);
  lift({50, 250});
  EXPECT_EQ(velocity, CGPoint{});
}

TEST_F(PanTest, SettingTheTranslationRestartsItFromThere) {
  press({50, 50});
  move({70, 50});
  pan.setTranslation({5, 5}, window);
  move({71, 52});
  EXPECT_EQ(translation, (CGPoint{6, 7}));
}

TEST_F(PanTest, MeasuresInTheGivenView) {
  press({50, 50});
  move({70, 50});
  view.setTransform({2, 0, 0, 2, 0, 0});
  EXPECT_EQ(pan.translationInView(view), (CGPoint{10, 0}));
  EXPECT_EQ(pan.translationInView(window), (CGPoint{20, 0}));
}

TEST_F(PanTest, ASecondFingerDoesNotMakeItJump) {
  press({50, 50}, 0);
  move({70, 50}, 0);
  press({170, 150}, 1);
  EXPECT_EQ(pan.translationInView(window), (CGPoint{20, 0}));
  EXPECT_EQ(pan.numberOfTouches(), 2u);
  move({180, 150}, 1);
  EXPECT_EQ(translation, (CGPoint{25, 0})) << "the middle of the two fingers moves";
  lift({70, 50}, 0);
  EXPECT_EQ(pan.translationInView(window), (CGPoint{25, 0}));
  EXPECT_EQ(pan.state(), UIGestureRecognizerStateChanged);
  lift({180, 150}, 1);
  EXPECT_EQ(events().back(), "pan ended");
}

TEST_F(PanTest, FingersBeyondItsMaximumAreNotItsOwn) {
  pan.setMaximumNumberOfTouches(1);
  press({50, 50}, 0);
  move({70, 50}, 0);
  press({170, 150}, 1);
  EXPECT_EQ(pan.numberOfTouches(), 1u);
  lift({170, 150}, 1);
  EXPECT_EQ(pan.state(), UIGestureRecognizerStateBegan);
  lift({70, 50}, 0);
}

TEST_F(PanTest, WaitsForItsMinimumNumberOfFingers) {
  pan.setMinimumNumberOfTouches(2);
  press({50, 50}, 0);
  move({90, 50}, 0);
  EXPECT_EQ(pan.state(), UIGestureRecognizerStatePossible);
  press({50, 90}, 1);
  move({50, 130}, 1);
  EXPECT_EQ(pan.state(), UIGestureRecognizerStateBegan);
  lift({50, 130}, 1);
  EXPECT_EQ(events().back(), "pan ended");
  lift({90, 50}, 0);
}

TEST_F(PanTest, LeavingItsViewDuringTheGestureCancelsIt) {
  press({50, 50});
  move({70, 50});
  told();
  view.removeGestureRecognizer(pan);
  EXPECT_EQ(told(), Events{"pan cancelled"});
  move({90, 50});
  lift({90, 50});
  EXPECT_EQ(told(), Events{});
}

TEST_F(PanTest, DisablingItDuringTheGestureCancelsIt) {
  press({50, 50});
  move({70, 50});
  told();
  pan.setEnabled(NO);
  EXPECT_EQ(told(), Events{"pan cancelled"});
  lift({70, 50});
  press({50, 50});
  move({90, 50});
  lift({90, 50});
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view ended"}));
}

TEST_F(PanTest, TheSystemsInterruptionCancelsIt) {
  press({50, 50});
  move({70, 50});
  told();
  input.cancel_all(clock.now());
  EXPECT_EQ(told(), Events{"pan cancelled"});
}

TEST_F(PanTest, LeavesTouchesToTheViewWhenConfiguredTo) {
  pan.setCancelsTouchesInView(NO);
  press({50, 50});
  move({70, 50});
  lift({70, 50});
  EXPECT_EQ(told(), (Events{"view began", "pan began", "view moved", "pan ended", "view ended"}));
}

TEST_F(PanTest, GoesOnWhileItsViewFollowsTheFinger) {
  press({50, 50});
  move({70, 50});
  view.setFrame({20, 0, 300, 300});
  move({75, 50});
  EXPECT_EQ(location, (CGPoint{55, 50}));
  EXPECT_EQ(translation, (CGPoint{25, 0}));
}

}  // namespace
}  // namespace host::test
