#include <cmath>

#include "objc/block.h"
#include "platform/QuartzCore/CADisplayLink.h"
#include "platform/QuartzCore/CAKeyframeAnimation.h"
#include "tests/host/quartzcore/quartz_test.h"

namespace host::test {
namespace {

using AnimationTest = QuartzTest;

CABasicAnimation basic(NSString path, double from, double to, double duration) {
  const auto animation = CABasicAnimation::animationWithKeyPath(path);
  animation.setFromValue(NSNumber::numberWithDouble(from));
  animation.setToValue(NSNumber::numberWithDouble(to));
  animation.setDuration(duration);
  return animation;
}

TEST_F(AnimationTest, TheModelIsUntouchedWhileThePresentationMoves) {
  const CALayer layer = CALayer::layer();
  layer.addAnimation(basic("opacity"_ns, 0, 1, 1), "fade"_ns);
  advance(0.25);
  EXPECT_EQ(layer.opacity(), 1);
  EXPECT_NEAR(layer.presentationLayer().opacity(), 0.25, 1e-6);
}

TEST_F(AnimationTest, FinishedAnimationsAreRemovedAndTheirDelegateNotifiedOnce) {
  const CALayer layer = CALayer::layer();
  const TestWatcher watcher = TestWatcher::make();
  const auto animation = basic("opacity"_ns, 0, 1, 0.5);
  animation.setDelegate(watcher);
  loop.perform([&] { layer.addAnimation(animation, "fade"_ns); });
  loop.run_ready();
  EXPECT_EQ(notes_of(watcher).starts, 1);
  EXPECT_TRUE(layer.animationForKey("fade"_ns));
  advance(0.4);
  EXPECT_TRUE(notes_of(watcher).stops.empty());
  advance(1);
  EXPECT_EQ(notes_of(watcher).starts, 1);
  EXPECT_EQ(notes_of(watcher).stops, std::vector{true});
  EXPECT_FALSE(layer.animationForKey("fade"_ns));
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(AnimationTest, ARemovedAnimationIsReportedUnfinishedOnceInTheNextTurn) {
  const CALayer layer = CALayer::layer();
  const TestWatcher watcher = TestWatcher::make();
  const auto animation = basic("opacity"_ns, 0, 1, 0.5);
  animation.setDelegate(watcher);
  layer.addAnimation(animation, "fade"_ns);
  advance(0.1);
  layer.removeAnimationForKey("fade"_ns);
  EXPECT_TRUE(notes_of(watcher).stops.empty());
  advance(2);
  EXPECT_EQ(notes_of(watcher).stops, std::vector{false});
}

TEST_F(AnimationTest, NoAnimationOutlivesTheLayerService) {
  const CALayer layer = CALayer::layer();
  layer.addAnimation(basic("opacity"_ns, 0, 1, 1), "fade"_ns);
  EXPECT_TRUE(loop.wants_frames());
  restart_service();
  EXPECT_FALSE(layer.animationForKey("fade"_ns));
  EXPECT_FALSE(loop.wants_frames());
  layer.addAnimation(basic("opacity"_ns, 0, 1, 1), "fade"_ns);
  EXPECT_TRUE(loop.wants_frames());
}

TEST_F(AnimationTest, AnotherAnimationUnderTheSameKeyReplacesTheFirst) {
  const CALayer layer = CALayer::layer();
  const TestWatcher watcher = TestWatcher::make();
  const auto first = basic("opacity"_ns, 0, 1, 1);
  first.setDelegate(watcher);
  layer.addAnimation(first, "fade"_ns);
  layer.addAnimation(basic("opacity"_ns, 0.5, 0.5, 1), "fade"_ns);
  advance(0.1);
  EXPECT_NEAR(layer.presentationLayer().opacity(), 0.5, 1e-6);
  EXPECT_EQ(notes_of(watcher).stops, std::vector{false});
  EXPECT_EQ(layer.animationKeys().count(), 1u);
}

TEST_F(AnimationTest, AdditiveAnimationsSumUpWhileOthersReplace) {
  const CALayer layer = CALayer::layer();
  layer.setPosition({100, 100});
  const auto add = [&](CGPoint from, NSString key, BOOL additive) {
    const auto animation = CABasicAnimation::animationWithKeyPath("position"_ns);
    animation.setFromValue(CAValue::valueWithCGPoint(from));
    animation.setToValue(CAValue::valueWithCGPoint({0, 0}));
    animation.setDuration(1);
    animation.setAdditive(additive);
    layer.addAnimation(animation, key);
  };
  add({-40, 0}, "a"_ns, YES);
  add({0, 20}, "b"_ns, YES);
  advance(0.5);
  EXPECT_NEAR(layer.presentationLayer().position().x, 80, 1e-6);
  EXPECT_NEAR(layer.presentationLayer().position().y, 110, 1e-6);
  add({10, 10}, "c"_ns, NO);
  EXPECT_NEAR(layer.presentationLayer().position().x, 10, 1e-6);
}

TEST_F(AnimationTest, AnAdditiveTransformStartsAtTheOldValueAndEndsAtTheModel) {
  const CALayer layer = CALayer::layer();
  const auto old_value = CATransform3DMakeScale(2, 2, 1);
  const auto new_value = CATransform3DMakeTranslation(10, 0, 0);
  layer.setTransform(new_value);
  const auto animation = CABasicAnimation::animationWithKeyPath("transform"_ns);
  animation.setFromValue(CAValue::valueWithCATransform3D(
      CATransform3DConcat(old_value, CATransform3DInvert(new_value))));
  animation.setToValue(CAValue::valueWithCATransform3D(CATransform3DIdentity));
  animation.setAdditive(YES);
  animation.setDuration(1);
  layer.addAnimation(animation, "t"_ns);
  EXPECT_NEAR(layer.presentationLayer().transform().m11, 2, 1e-9);
  EXPECT_NEAR(layer.presentationLayer().transform().m41, 0, 1e-9);
  advance(1.1);
  EXPECT_EQ(layer.presentationLayer().transform(), new_value);
}

TEST_F(AnimationTest, ACumulativeRotationByKeyPathTurnsForever) {
  const CALayer layer = CALayer::layer();
  const auto animation = CABasicAnimation::animationWithKeyPath("transform.rotation.z"_ns);
  animation.setToValue(NSNumber::numberWithFloat(6.2831855f));
  animation.setDuration(1);
  animation.setCumulative(YES);
  animation.setRepeatCount(HUGE_VALF);
  layer.addAnimation(animation, "turn"_ns);
  advance(7.25);
  EXPECT_NEAR(layer.presentationLayer().affineTransform().b, 1, 1e-4);
  EXPECT_TRUE(loop.wants_frames());
  layer.removeAllAnimations();
}

TEST_F(AnimationTest, AForwardsFillKeepsTheEndValueAndRequestsNoFrames) {
  const CALayer layer = CALayer::layer();
  const auto animation = basic("opacity"_ns, 1, 0.2, 0.3);
  animation.setFillMode(kCAFillModeForwards());
  animation.setRemovedOnCompletion(NO);
  layer.addAnimation(animation, "Show"_ns);
  advance(2);
  EXPECT_NEAR(layer.presentationLayer().opacity(), 0.2, 1e-6);
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(AnimationTest, AnAutoreversedAnimationComesBack) {
  const CALayer layer = CALayer::layer();
  const auto animation = basic("opacity"_ns, 1, 0, 1);
  animation.setAutoreverses(YES);
  layer.addAnimation(animation, "pulse"_ns);
  advance(1.75);
  EXPECT_NEAR(layer.presentationLayer().opacity(), 0.75, 1e-6);
  advance(0.5);
  EXPECT_FALSE(layer.animationForKey("pulse"_ns));
}

TEST_F(AnimationTest, KeyframesAreReachedAtTheirTimes) {
  const CALayer layer = CALayer::layer();
  const auto animation = CAKeyframeAnimation::animationWithKeyPath("opacity"_ns);
  const auto number = [](double value) { return NSNumber::numberWithDouble(value); };
  animation.setValues(NSArray::arrayWithObjects(number(0), number(1), number(0.5)));
  animation.setKeyTimes(NSArray::arrayWithObjects(number(0), number(0.2), number(1)));
  animation.setDuration(1);
  layer.addAnimation(animation, "k"_ns);
  advance(0.1);
  EXPECT_NEAR(layer.presentationLayer().opacity(), 0.5, 1e-6);
  advance(0.5);
  EXPECT_NEAR(layer.presentationLayer().opacity(), 0.75, 1e-6);
}

TEST_F(AnimationTest, TheNamedCurvesShareTheirEndsAndEaseInBetween) {
  const CALayer layer = CALayer::layer();
  const auto animation = basic("opacity"_ns, 0, 1, 1);
  animation.setTimingFunction(CAMediaTimingFunction::functionWithName("easeInEaseOut"_ns));
  layer.addAnimation(animation, "f"_ns);
  advance(0.1);
  EXPECT_LT(layer.presentationLayer().opacity(), 0.05);
  advance(0.4);
  EXPECT_NEAR(layer.presentationLayer().opacity(), 0.5, 1e-4);
  EXPECT_FALSE(CAMediaTimingFunction::functionWithName("no such curve"_ns));
}

TEST_F(AnimationTest, AChangeInATreeAnimatesImplicitlyUnlessActionsAreDisabled) {
  const CALayer parent = CALayer::layer();
  const CALayer child = CALayer::layer();
  parent.addSublayer(child);
  child.setOpacity(0);
  EXPECT_TRUE(child.animationForKey("opacity"_ns));
  advance(0.3);
  EXPECT_FALSE(child.animationForKey("opacity"_ns));
  CATransaction::begin();
  CATransaction::setDisableActions(YES);
  child.setOpacity(1);
  CATransaction::commit();
  EXPECT_FALSE(child.animationForKey("opacity"_ns));
  child.setCornerRadius(4);
  EXPECT_TRUE(child.animationForKey("cornerRadius"_ns));
}

TEST_F(AnimationTest, ATransactionCompletesOnceAfterItsLastAnimation) {
  const CALayer parent = CALayer::layer();
  const CALayer child = CALayer::layer();
  parent.addSublayer(child);
  int completions = 0;
  auto complete = [&completions] { ++completions; };
  loop.perform([&] {
    CATransaction::begin();
    CATransaction::setAnimationDuration(0.5);
    CATransaction::setCompletionBlock(objc::block(complete));
    child.setOpacity(0.5);
    CATransaction::commit();
  });
  advance(0.4);
  EXPECT_EQ(completions, 0);
  advance(1);
  EXPECT_EQ(completions, 1);
}

TEST_F(AnimationTest, ATransactionWithNothingToAnimateCompletesInTheNextTurn) {
  int completions = 0;
  auto complete = [&completions] { ++completions; };
  CATransaction::begin();
  CATransaction::setCompletionBlock(objc::block(complete));
  CATransaction::commit();
  EXPECT_EQ(completions, 0);
  loop.run_ready();
  EXPECT_EQ(completions, 1);
}

TEST_F(AnimationTest, RemovingALayerFromItsTreeEndsItsAnimations) {
  const CALayer parent = CALayer::layer();
  const CALayer child = CALayer::layer();
  parent.addSublayer(child);
  const TestWatcher watcher = TestWatcher::make();
  const auto animation = basic("opacity"_ns, 0, 1, 5);
  animation.setDelegate(watcher);
  child.addAnimation(animation, "fade"_ns);
  child.removeFromSuperlayer();
  advance(0.1);
  EXPECT_EQ(notes_of(watcher).stops, std::vector{false});
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(AnimationTest, ALayerMayBeDestroyedWhileItIsAnimated) {
  CALayer layer = CALayer::alloc().init();
  layer.addAnimation(basic("opacity"_ns, 0, 1, 5), "fade"_ns);
  advance(0.1);
  layer.release();
  EXPECT_FALSE(loop.wants_frames());
  advance(0.1);
}

TEST_F(AnimationTest, ADisplayLinkTicksEveryFrameUntilInvalidated) {
  const TestWatcher watcher = TestWatcher::make();
  const NSUInteger before = watcher.retainCount();
  const auto link = CADisplayLink::displayLinkWithTarget(watcher, "onFrame:"_sel);
  EXPECT_EQ(watcher.retainCount(), before + 1);
  link.addToRunLoop(nil, "common"_ns);
  advance(0.5);
  EXPECT_NEAR(static_cast<double>(notes_of(watcher).frames.size()), 30, 1);
  link.setPaused(YES);
  const std::size_t paused_at = notes_of(watcher).frames.size();
  advance(0.5);
  EXPECT_EQ(notes_of(watcher).frames.size(), paused_at);
  link.invalidate();
  EXPECT_EQ(watcher.retainCount(), before);
  EXPECT_FALSE(loop.wants_frames());
}

}  // namespace
}  // namespace host::test
