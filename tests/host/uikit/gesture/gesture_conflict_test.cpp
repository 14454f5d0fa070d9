#include "platform/UIKit/UILongPressGestureRecognizer.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/host/uikit/support/recording_target.h"

namespace host::test {
namespace {

class GestureConflictTest : public UIKitTest {
 protected:
  GestureConflictTest()
      : outer(add_view({0, 0, 300, 300})),
        inner(UIView::alloc().initWithFrame({0, 0, 200, 200}).autorelease()),
        outer_target(RecordingTarget::make("outer")),
        inner_target(RecordingTarget::make("inner")) {
    outer.addSubview(inner);
  }
  void drag() {
    press({50, 50});
    move({80, 50});
    lift({80, 50});
  }

  UIView outer;
  UIView inner;
  objc::Ref<TestTarget> outer_target;
  objc::Ref<TestTarget> inner_target;
};

TEST_F(GestureConflictTest, OfTwoPansTheInnerOneWins) {
  RecordingTarget::add<UIPanGestureRecognizer>(outer, outer_target.get());
  RecordingTarget::add<UIPanGestureRecognizer>(inner, inner_target.get());
  drag();
  EXPECT_EQ(told(), (Events{"inner began", "inner ended"}));
  drag();
  EXPECT_EQ(told(), (Events{"inner began", "inner ended"})) << "and again";
}

TEST_F(GestureConflictTest, OneConsentingDelegateLetsBothRecognise) {
  const auto pan = RecordingTarget::add<UIPanGestureRecognizer>(outer, outer_target.get());
  const auto other = RecordingTarget::add<UIPanGestureRecognizer>(inner, inner_target.get());
  pan.setDelegate(outer_target.get());
  other.setDelegate(inner_target.get());
  objc::state_of<RecordingTarget>(outer_target.get()).goes_together = YES;
  drag();
  EXPECT_EQ(told(), (Events{"inner began", "outer began", "inner ended", "outer ended"}));
}

TEST_F(GestureConflictTest, APanThatBeginsMakesATapFail) {
  RecordingTarget::add<UITapGestureRecognizer>(outer, outer_target.get());
  RecordingTarget::add<UIPanGestureRecognizer>(inner, inner_target.get());
  drag();
  EXPECT_EQ(told(), (Events{"inner began", "inner ended"}));
  tap({50, 50});
  EXPECT_EQ(told(), Events{"outer ended"});
}

TEST_F(GestureConflictTest, ARecognizerDisabledByATapStartsOverWhenEnabledAgain) {
  const auto pan = RecordingTarget::add<UIPanGestureRecognizer>(outer, outer_target.get());
  RecordingTarget::add<UITapGestureRecognizer>(inner, inner_target.get());
  auto& taps = objc::state_of<RecordingTarget>(inner_target.get());
  taps.on_gesture = [pan](UIGestureRecognizer) { pan.setEnabled(NO); };
  tap({50, 50});
  EXPECT_EQ(told(), Events{"inner ended"});
  EXPECT_EQ(pan.state(), UIGestureRecognizerStatePossible);
  pan.setEnabled(YES);
  drag();
  EXPECT_EQ(told(), (Events{"outer began", "outer ended"}));
}

TEST_F(GestureConflictTest, ALongPressPreventsThePan) {
  RecordingTarget::add<UIPanGestureRecognizer>(outer, outer_target.get());
  RecordingTarget::add<UILongPressGestureRecognizer>(inner, inner_target.get());
  press({50, 50});
  advance(0.6);
  move({100, 50});
  lift({100, 50});
  EXPECT_EQ(told(), (Events{"inner began", "inner changed", "inner ended"}));
}

TEST_F(GestureConflictTest, ARecognizerThatWaitsGoesOnWhenTheOtherFails) {
  const auto tap_outer = RecordingTarget::add<UITapGestureRecognizer>(outer, outer_target.get());
  const auto press_inner =
      RecordingTarget::add<UILongPressGestureRecognizer>(inner, inner_target.get());
  tap_outer.requireGestureRecognizerToFail(press_inner);
  tap({50, 50});
  EXPECT_EQ(told(), Events{"outer ended"});
  press({50, 50});
  advance(0.6);
  lift({50, 50});
  EXPECT_EQ(told(), (Events{"inner began", "inner ended"}));
}

TEST_F(GestureConflictTest, DifferentFingersOnDifferentViewsDoNotConflict) {
  const UIView other = add_view({0, 300, 300, 300});
  RecordingTarget::add<UIPanGestureRecognizer>(inner, inner_target.get());
  RecordingTarget::add<UIPanGestureRecognizer>(other, outer_target.get());
  press({50, 50}, 0);
  press({50, 350}, 1);
  move({80, 50}, 0);
  move({80, 350}, 1);
  EXPECT_EQ(told(), (Events{"inner began", "outer began"}));
  lift({80, 50}, 0);
  lift({80, 350}, 1);
}

TEST_F(GestureConflictTest, ARecognizerMovesWithItsViewAndBelongsToOneViewOnly) {
  const auto pan = RecordingTarget::add<UIPanGestureRecognizer>(inner, inner_target.get());
  outer.addGestureRecognizer(pan);
  EXPECT_EQ(inner.gestureRecognizers().count(), 0u);
  EXPECT_EQ(outer.gestureRecognizers().count(), 1u);
  EXPECT_EQ(pan.view(), outer);
}

TEST_F(GestureConflictTest, AnActionMayRemoveEveryRecognizer) {
  RecordingTarget::add<UIPanGestureRecognizer>(inner, inner_target.get());
  objc::state_of<RecordingTarget>(inner_target.get()).on_gesture = [this](UIGestureRecognizer) {
    inner.setGestureRecognizers(nil);
    inner.removeFromSuperview();
  };
  drag();
  EXPECT_EQ(told(), (Events{"inner began", "inner cancelled"}));
}

}  // namespace
}  // namespace host::test
