#include <cmath>
#include <limits>

#include "platform/CoreGraphics/CGPath.h"
#include "platform/QuartzCore/CAMediaTiming.h"
#include "tests/ui/ring_test.h"

namespace sonavue::test {
namespace {

using RingProgress = RingTest;

// The tolerance between a float during an animation and the same value computed here.
constexpr float kClose = 1e-5f;

TEST_F(RingProgress, SettingWithoutAnimationTakesEffectAtOnce) {
  const auto ring = ring_of(40);

  ring.setProgress(0.4f, NO);

  EXPECT_EQ(ring.progress(), 0.4f);
  EXPECT_FALSE(ring.displayLink());
  EXPECT_TRUE(ring.layer().needsDisplay());
}

TEST_F(RingProgress, SettingTheSameProgressAgainDoesNothing) {
  const auto ring = ring_of(40);
  ring.setProgress(0.4f, NO);
  show(ring);

  ring.setProgress(0.4f, NO);
  EXPECT_FALSE(ring.layer().needsDisplay());

  ring.setProgress(0.4f, YES);
  EXPECT_FALSE(ring.displayLink());
  EXPECT_EQ(ring.animationStartTime(), 0);
}

TEST_F(RingProgress, AnAnimatedChangeRecordsItsValuesAndStartTime) {
  const auto ring = ring_of(40);
  ring.setProgress(0.25f, NO);

  ring.setProgress(0.75f, YES);

  EXPECT_EQ(ring.animationFromValue(), 0.25f);
  EXPECT_EQ(ring.animationToValue(), 0.75f);
  EXPECT_EQ(ring.animationStartTime(), CACurrentMediaTime());
  EXPECT_EQ(ring.progress(), 0.25f);
}

TEST_F(RingProgress, RequestsFramesOnlyWhileAnimating) {
  const auto ring = ring_of(40);
  advance(1);
  ASSERT_FALSE(loop.wants_frames());

  ring.setProgress(1, YES);
  EXPECT_TRUE(ring.displayLink());
  EXPECT_TRUE(loop.wants_frames());

  advance(0.35);
  EXPECT_EQ(ring.progress(), 1);
  EXPECT_FALSE(ring.displayLink());

  // The layers' colours and widths may still be animating from the first layout.
  advance(1);
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(RingProgress, MovesLinearlyInTime) {
  const auto ring = ring_of(40);
  ring.setProgress(0.2f, NO);
  ring.setProgress(0.8f, YES);
  const double start = clock.now();

  for (const double seconds : {0.05, 0.1, 0.15, 0.2, 0.25}) {
    advance(start + seconds - clock.now());
    ASSERT_TRUE(ring.displayLink());
    const double shown = ring.displayLink().timestamp() - start;
    EXPECT_NEAR(shown, seconds, host::RunLoop::kFrame);
    EXPECT_NEAR(ring.progress(), 0.2 + 0.6 * shown / 0.3, kClose);
  }
}

TEST_F(RingProgress, UsesTheDurationThatIsSet) {
  const auto ring = ring_of(40);
  ring.setAnimationDuration(2);
  ring.setProgress(1, YES);
  const double start = clock.now();

  advance(1);

  EXPECT_NEAR(ring.progress(), (ring.displayLink().timestamp() - start) / 2, kClose);
  EXPECT_NEAR(ring.progress(), 0.5, 0.02);
  advance(1.05);
  EXPECT_EQ(ring.progress(), 1);
}

TEST_F(RingProgress, WaitsForTheMainQueueBeforeItMoves) {
  const auto ring = ring_of(40);
  ring.setProgress(1, YES);
  advance(0.1);
  const float before = ring.progress();
  ring.setAnimationDuration(0.01);

  ring.animateProgress(ring.displayLink());

  EXPECT_EQ(ring.progress(), before);
  loop.run_ready();
  EXPECT_EQ(ring.progress(), 1);
}

TEST_F(RingProgress, ANewTargetStartsFromTheCurrentValue) {
  const auto ring = ring_of(40);
  ring.setProgress(1, YES);
  advance(0.15);
  const float reached = ring.progress();
  const CADisplayLink link = ring.displayLink();
  ASSERT_GT(reached, 0.4f);
  ASSERT_LT(reached, 0.6f);

  ring.setProgress(0, YES);
  const double start = clock.now();

  EXPECT_EQ(ring.progress(), reached);
  EXPECT_EQ(ring.animationFromValue(), reached);
  EXPECT_EQ(ring.animationToValue(), 0);
  EXPECT_EQ(ring.animationStartTime(), start);
  EXPECT_EQ(ring.displayLink(), link);

  advance(0.15);
  EXPECT_NEAR(ring.progress(), reached * (1 - (link.timestamp() - start) / 0.3), kClose);
  advance(0.2);
  EXPECT_EQ(ring.progress(), 0);
}

TEST_F(RingProgress, SettingWithoutAnimationCancelsTheRunningAnimation) {
  const auto ring = ring_of(40);
  ring.setProgress(1, YES);
  advance(0.1);

  ring.setProgress(0.9f, NO);

  EXPECT_FALSE(ring.displayLink());
  advance(1);
  EXPECT_EQ(ring.progress(), 0.9f);
}

TEST_F(RingProgress, AQueuedFrameIsDroppedWhenTheChangeIsCancelled) {
  const auto ring = ring_of(40);
  ring.setProgress(1, YES);
  advance(0.1);
  ring.animateProgress(ring.displayLink());

  ring.setProgress(0.05f, NO);
  loop.run_ready();

  EXPECT_EQ(ring.progress(), 0.05f);
}

TEST_F(RingProgress, EveryFrameRequestsDrawing) {
  const auto ring = ring_of(40);
  ring.setProgress(1, YES);
  advance(0.1);
  show(ring);

  ring.animateProgress(ring.displayLink());
  loop.run_ready();
  // Retained, or the next path could have the same address.
  const CGPathRef path = CGPathRetain(ring.progressLayer().path());
  advance(0.05);
  show(ring);

  EXPECT_NE(ring.progressLayer().path(), path);
  CGPathRelease(path);
}

TEST_F(RingProgress, ADurationOfZeroEndsWithTheNextFrame) {
  const auto ring = ring_of(40);
  ring.setAnimationDuration(0);

  ring.setProgress(0.5f, YES);
  advance(0.05);

  EXPECT_EQ(ring.progress(), 0.5f);
  EXPECT_FALSE(ring.displayLink());
}

TEST_F(RingProgress, ADurationOfZeroEndsEvenWhenNoTimeHasPassed) {
  const auto ring = ring_of(40);
  ring.setProgress(0.1f, YES);
  advance(0.1);
  const CADisplayLink link = ring.displayLink();
  // The frame's time equals the start time: zero divided by zero.
  while (link.timestamp() < clock.now())
    advance(link.timestamp() + host::RunLoop::kFrame - clock.now());
  ring.setAnimationDuration(0);
  ring.setProgress(0.5f, YES);
  ASSERT_EQ(link.timestamp(), ring.animationStartTime());

  ring.animateProgress(link);
  loop.run_ready();

  EXPECT_EQ(ring.progress(), 0.5f);
}

TEST_F(RingProgress, AProgressOfNaNDrawsNoArc) {
  const auto ring = ring_of(40);
  ring.setProgress(0.5f, NO);
  show(ring);

  for (const float odd :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity()}) {
    ring.setProgress(odd, NO);
    show(ring);
    const CGRect box = CGPathGetPathBoundingBox(ring.progressLayer().path());
    EXPECT_NEAR(box.size.width, 0, 0.01);
    EXPECT_NEAR(box.size.height, 0, 0.01);
  }

  ring.setProgress(std::numeric_limits<float>::quiet_NaN(), YES);
  advance(0.15);
  ring.setProgress(0.5f, YES);
  advance(0.5);
  EXPECT_EQ(ring.progress(), 0.5f);
}

TEST_F(RingProgress, AnAnimatingRingLivesUntilItsEnd) {
  objc::Ref<CAShapeLayer> layer;
  {
    const objc::AutoreleasePool pool;
    const auto ring = M13ProgressViewRing::alloc().initWithFrame({0, 0, 40, 40});
    layer.reset(ring.progressLayer());
    ring.setProgress(1, YES);
    ring.release();
  }
  EXPECT_GT(layer->retainCount(), 1u);

  advance(0.5);

  EXPECT_EQ(layer->retainCount(), 1u);
}

}  // namespace
}  // namespace sonavue::test
