#include "objc/class_builder.h"
#include "platform/Foundation/NSString.h"
#include "tests/support/host_test.h"

namespace {

struct TickTarget : objc::Bound<TickTarget, "TickTarget", NSObject> {};

struct Timer : objc::Bound<Timer, "NSTimer", NSObject> {
  static Timer scheduled(double interval, TickTarget target, BOOL repeats) {
    return call_class<"scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:", Timer>(
        interval, target, "tick:"_sel, "user info"_ns, repeats);
  }
  void fire() const { call<"fire">(); }
  void invalidate() const { call<"invalidate">(); }
  BOOL isValid() const { return call<"isValid", BOOL>(); }
  NSString userInfo() const { return call<"userInfo", NSString>(); }
};

int ticks = 0;
int targets_alive = 0;

class TickTargetState : public objc::Implementation<TickTargetState, TickTarget> {
 public:
  explicit TickTargetState(TickTarget owner) : Implementation(owner) { ++targets_alive; }
  ~TickTargetState() { --targets_alive; }
  void tick(Timer timer) {
    ++ticks;
    EXPECT_TRUE(timer.userInfo().isEqualToString("user info"_ns));
  }
  void perform(NSString) { ++ticks; }
};

struct TimerTest : host::test::HostTest {
  TimerTest() {
    if (!objc_getClass("TickTarget")) {
      objc::ClassBuilder("TickTarget", "NSObject")
          .state<TickTargetState>()
          .method<&TickTargetState::tick>("tick:")
          .method<&TickTargetState::perform>("perform:")
          .finish();
    }
    ticks = 0;
    target = TickTarget::alloc().init();
  }
  TickTarget target;
};

TEST_F(TimerTest, RepeatingTimersMayWaitForEachOther) {
  const double start = clock.now();
  const Timer first = Timer::scheduled(0.1, target, YES);
  advance(0.009);
  const Timer second = Timer::scheduled(0.1, target, YES);
  EXPECT_NEAR(loop.next_wake(), start + 0.109, 1e-6);
  second.invalidate();
  const Timer once = Timer::scheduled(0.1, target, NO);
  EXPECT_NEAR(loop.next_wake(), start + 0.109, 1e-6);
  first.invalidate();
  const Timer other = Timer::scheduled(0.105, target, YES);
  EXPECT_NEAR(loop.next_wake(), start + 0.109, 1e-6) << "one that does not repeat is not late";
  other.invalidate();
  once.invalidate();
  target.release();
}

TEST_F(TimerTest, RepeatsOnTheClockUntilInvalidated) {
  const Timer timer = Timer::scheduled(0.1, target, YES);
  target.release();
  advance(1.0);
  EXPECT_EQ(ticks, 10);
  timer.invalidate();
  advance(1.0);
  EXPECT_EQ(ticks, 10);
  EXPECT_FALSE(timer.isValid());
}

TEST_F(TimerTest, FiringByHandLeavesTheScheduleAlone) {
  const Timer timer = Timer::scheduled(1.0, target, YES);
  target.release();
  advance(0.5);
  timer.fire();
  EXPECT_EQ(ticks, 1);
  advance(0.5);
  EXPECT_EQ(ticks, 2);
  timer.invalidate();
}

TEST_F(TimerTest, ATimerThatDoesNotRepeatInvalidatesItself) {
  const Timer timer = Timer::scheduled(0.5, target, NO);
  target.release();
  EXPECT_TRUE(timer.isValid());
  advance(2.0);
  EXPECT_EQ(ticks, 1);
  EXPECT_FALSE(timer.isValid());
}

TEST_F(TimerTest, TheTargetIsRetainedUntilInvalidation) {
  {
    objc::AutoreleasePool inner;
    const Timer timer = Timer::scheduled(10.0, target, YES);
    target.release();
    EXPECT_EQ(targets_alive, 1);
    timer.invalidate();
  }
  EXPECT_EQ(targets_alive, 0);
}

TEST_F(TimerTest, DelayedPerformRunsOnceOnTheClock) {
  target.performSelectorWithObjectAfterDelay("perform:"_sel, "x"_ns, 0.25);
  target.release();
  advance(0.2);
  EXPECT_EQ(ticks, 0);
  advance(0.1);
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(targets_alive, 0);
}

}  // namespace
