#include <cmath>
#include <numbers>

#include "platform/CoreGraphics/CGPath.h"
#include "platform/Foundation/NSValue.h"
#include "tests/ui/ring_test.h"

namespace sonavue::test {
namespace {

using RingActions = RingTest;

bool animates(CALayer layer, NSString key) {
  return static_cast<bool>(layer.animationForKey(key));
}

double number(objc::Object object) {
  return objc::cast<NSNumber>(object).doubleValue();
}

bool has_icon(M13ProgressViewRing ring) {
  return !CGPathIsEmpty(ring.iconLayer().path());
}

TEST_F(RingActions, FadesRunForTheAnimationDurationAndKeepTheirFinalValue) {
  const auto ring = ring_of(40);
  ring.setAnimationDuration(0.7);

  const CABasicAnimation show = ring.showAnimation();
  EXPECT_STREQ(show.keyPath().UTF8String(), "opacity");
  EXPECT_EQ(number(show.fromValue()), 0);
  EXPECT_EQ(number(show.toValue()), 1);

  const CABasicAnimation hide = ring.hideAnimation();
  EXPECT_STREQ(hide.keyPath().UTF8String(), "opacity");
  EXPECT_EQ(number(hide.fromValue()), 1);
  EXPECT_EQ(number(hide.toValue()), 0);

  for (const CABasicAnimation fade : {show, hide}) {
    EXPECT_DOUBLE_EQ(fade.duration(), 0.7);
    EXPECT_EQ(fade.repeatCount(), 1);
    EXPECT_STREQ(fade.fillMode().UTF8String(), "forwards");
    EXPECT_FALSE(fade.isRemovedOnCompletion());
  }
}

TEST_F(RingActions, IndeterminateShowsTheBackgroundAndTurnsIt) {
  const auto ring = ring_of(40);

  ring.setIndeterminate(YES);

  EXPECT_TRUE(ring.indeterminate());
  EXPECT_TRUE(animates(ring.backgroundLayer(), "Show"_ns));
  const auto rotation =
      objc::cast<CABasicAnimation>(ring.backgroundLayer().animationForKey("rotationAnimation"_ns));
  ASSERT_TRUE(rotation);
  EXPECT_STREQ(rotation.keyPath().UTF8String(), "transform.rotation.z");
  EXPECT_EQ(number(rotation.toValue()), static_cast<float>(2 * std::numbers::pi));
  EXPECT_EQ(rotation.duration(), 1);
  EXPECT_TRUE(rotation.isCumulative());
  EXPECT_TRUE(std::isinf(rotation.repeatCount()));
}

TEST_F(RingActions, TurningEndsWhenTheBackgroundHasFaded) {
  const auto ring = ring_of(40);
  ring.setIndeterminate(YES);
  advance(1);

  ring.setIndeterminate(NO);
  EXPECT_FALSE(ring.indeterminate());
  EXPECT_TRUE(animates(ring.backgroundLayer(), "Hide"_ns));
  EXPECT_TRUE(animates(ring.backgroundLayer(), "rotationAnimation"_ns));
  // Retained, or the next path could have the same address.
  const CGPathRef gap = CGPathRetain(ring.backgroundLayer().path());

  advance(0.5);
  EXPECT_FALSE(animates(ring.backgroundLayer(), "rotationAnimation"_ns));
  EXPECT_NE(ring.backgroundLayer().path(), gap);
  CGPathRelease(gap);
  EXPECT_TRUE(animates(ring.backgroundLayer(), "Hide"_ns));
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(RingActions, StartingAgainDuringTheFadeKeepsItTurning) {
  const auto ring = ring_of(40);
  ring.setIndeterminate(YES);
  advance(1);
  ring.setIndeterminate(NO);
  advance(0.1);

  ring.setIndeterminate(YES);
  advance(1);

  EXPECT_TRUE(animates(ring.backgroundLayer(), "rotationAnimation"_ns));
  EXPECT_FALSE(animates(ring.backgroundLayer(), "Hide"_ns));
}

TEST_F(RingActions, SettingIndeterminateToItsCurrentValueDoesNothing) {
  const auto ring = ring_of(40);

  ring.setIndeterminate(NO);
  EXPECT_FALSE(animates(ring.backgroundLayer(), "Hide"_ns));

  ring.setIndeterminate(YES);
  const CAAnimation show = ring.backgroundLayer().animationForKey("Show"_ns);
  ring.setIndeterminate(YES);
  EXPECT_EQ(ring.backgroundLayer().animationForKey("Show"_ns), show);
}

TEST_F(RingActions, AnActionWithoutAnimationShowsItsIconAtOnce) {
  const auto ring = ring_of(40);

  ring.performAction(M13ProgressViewActionSuccess, NO);
  EXPECT_EQ(ring.currentAction(), M13ProgressViewActionSuccess);
  EXPECT_TRUE(has_icon(ring));
  EXPECT_FALSE(animates(ring.iconLayer(), "Show"_ns));

  ring.performAction(M13ProgressViewActionNone, NO);
  EXPECT_EQ(ring.currentAction(), M13ProgressViewActionNone);
  EXPECT_FALSE(has_icon(ring));
}

TEST_F(RingActions, AnAnimatedActionFadesTheOldIconOutAndTheNewOneIn) {
  const auto ring = ring_of(40);

  ring.performAction(M13ProgressViewActionFailure, YES);
  EXPECT_EQ(ring.currentAction(), M13ProgressViewActionFailure);
  EXPECT_TRUE(animates(ring.iconLayer(), "Hide"_ns));
  ring.setNeedsDisplay();
  show(ring);
  EXPECT_FALSE(has_icon(ring));

  advance(0.4);
  EXPECT_TRUE(has_icon(ring));
  EXPECT_TRUE(animates(ring.iconLayer(), "Show"_ns));
  EXPECT_FALSE(animates(ring.iconLayer(), "Hide"_ns));
  advance(0.5);
  EXPECT_FLOAT_EQ(ring.iconLayer().presentationLayer().opacity(), 1);
}

TEST_F(RingActions, AnActionWithoutAnimationOvertakesAFadingOne) {
  const auto ring = ring_of(40);
  ring.performAction(M13ProgressViewActionFailure, YES);
  advance(0.1);

  ring.performAction(M13ProgressViewActionNone, NO);
  advance(1);

  EXPECT_FALSE(has_icon(ring));
  EXPECT_FALSE(animates(ring.iconLayer(), "Show"_ns));
  EXPECT_FALSE(animates(ring.iconLayer(), "Hide"_ns));
}

}  // namespace
}  // namespace sonavue::test
