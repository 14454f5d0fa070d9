#include "host/uikit/touch/system_gestures.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

class TouchTest : public UIKitTest {
 protected:
  TouchTest() : view(RecordingView::make("view", {0, 0, 100, 100})) {
    window.addSubview(view);
    told();
  }
  TestRecordingView view;
};

TEST_F(TouchTest, GoesToTheViewUnderTheFinger) {
  press({50, 50});
  move({60, 60});
  lift({60, 60});
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view ended"}));
  press({200, 200});
  lift({200, 200});
  EXPECT_EQ(told(), Events{});
}

TEST_F(TouchTest, KeepsItsFirstViewUntilItEnds) {
  const auto other = RecordingView::make("other", {100, 0, 100, 100});
  window.addSubview(other);
  told();
  press({50, 50});
  move({150, 50});
  lift({150, 50});
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view ended"}));
}

TEST_F(TouchTest, AFingerThatDoesNotMoveIsNotReported) {
  press({50, 50});
  move({50, 50});
  EXPECT_EQ(told(), Events{"view began"});
}

TEST_F(TouchTest, WhereTheFingerLiftedIsReportedAsAMovementFirst) {
  press({50, 50});
  lift({70, 50});
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view ended"}));
}

TEST_F(TouchTest, TheSystemMayCancelIt) {
  press({50, 50});
  input.cancel_all(clock.now());
  EXPECT_EQ(told(), (Events{"view began", "view cancelled"}));
}

TEST_F(TouchTest, ACancelledFingerIsIgnoredUntilItLifts) {
  press({50, 50});
  uikit::cancel_every_touch();
  EXPECT_EQ(told(), (Events{"view began", "view cancelled"}));
  move({60, 60});
  lift({60, 60});
  EXPECT_EQ(told(), Events{});
  tap({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

TEST_F(TouchTest, OnlyFingersThatAreDownAreCancelled) {
  press({50, 50}, 0);
  uikit::cancel_every_touch();
  told();
  press({50, 50}, 1);
  move({60, 60}, 0);
  lift({50, 50}, 1);
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

TEST_F(TouchTest, ARecognizerThatHasBegunIsCancelledAndAnotherFails) {
  const auto target = RecordingTarget::make("pan");
  const auto pan = RecordingTarget::add<UIPanGestureRecognizer>(view, target.get());
  press({50, 50});
  move({80, 50});
  uikit::cancel_every_touch();
  EXPECT_EQ(told(), (Events{"view began", "view cancelled", "pan began", "pan cancelled"}));
  press({10, 10}, 1);
  move({15, 10}, 1);
  uikit::cancel_every_touch();
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view cancelled"}));
  EXPECT_EQ(pan.state(), UIGestureRecognizerStatePossible) << "and is ready for the next";
}

TEST_F(TouchTest, AnActionMayCancelItsOwnTouch) {
  const auto first = RecordingTarget::make("first");
  const auto second = RecordingTarget::make("second");
  for (const auto& target : {first, second}) {
    RecordingTarget::add<UIPanGestureRecognizer>(view, target.get()).setDelegate(target.get());
    objc::state_of<RecordingTarget>(target.get()).goes_together = YES;
  }
  objc::state_of<RecordingTarget>(first.get()).on_gesture = [](UIGestureRecognizer recognizer) {
    if (recognizer.state() == UIGestureRecognizerStateBegan) uikit::cancel_every_touch();
  };
  press({50, 50});
  move({80, 50});
  EXPECT_EQ(told(), (Events{"view began", "view cancelled", "first began", "first cancelled"}));
  move({90, 50});
  lift({90, 50});
  EXPECT_EQ(told(), Events{});
}

TEST_F(TouchTest, AScreenThatIsOffIgnoresFingers) {
  press({50, 50}, 0);
  uikit::set_touches_enabled(false);
  EXPECT_EQ(told(), (Events{"view began", "view cancelled"}));
  press({10, 10}, 1);
  uikit::set_touches_enabled(true);
  move({20, 20}, 1);
  lift({20, 20}, 1);
  lift({50, 50}, 0);
  EXPECT_EQ(told(), Events{}) << "they were down while the screen was off";
  tap({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

/// Claims a finger as soon as it moves, and records what it sees.
class GreedyGestures final : public uikit::SystemGestures {
 public:
  explicit GreedyGestures(std::string name, UITouchPhase taken_at)
      : name_(std::move(name)), taken_at_(taken_at) {
    uikit::add_system_gestures(this);
  }
  ~GreedyGestures() override { uikit::remove_system_gestures(this); }

  Claim touch(int, UITouchPhase phase, CGPoint, double) override {
    static const char* const phases[] = {"began", "moved", "rests", "ended", "cancelled"};
    UIKitTest::events().push_back(name_ + " " + phases[phase]);
    if (on_touch) on_touch(phase);
    if (phase == taken_at_) has_ = true;
    if (phase == UITouchPhaseCancelled) has_ = false;
    return has_ ? Claim::System : Claim::Windows;
  }

  std::function<void(UITouchPhase)> on_touch;

 private:
  std::string name_;
  UITouchPhase taken_at_;
  bool has_ = false;
};

TEST_F(TouchTest, AFingerThatTheSystemHasClaimedStaysWithIt) {
  GreedyGestures edge("edge", UITouchPhaseMoved);
  press({50, 50});
  move({60, 60});
  EXPECT_EQ(told(), (Events{"edge began", "view began", "edge moved", "view cancelled"}));
  uikit::cancel_every_touch();
  move({70, 70});
  lift({70, 70});
  EXPECT_EQ(told(), (Events{"edge moved", "edge ended"}));
}

TEST_F(TouchTest, AGestureMayCancelOtherTouchesAsItClaimsItsOwn) {
  GreedyGestures edge("edge", UITouchPhaseMoved);
  press({50, 50}, 0);
  press({200, 200}, 1);
  told();
  edge.on_touch = [](UITouchPhase phase) {
    if (phase == UITouchPhaseMoved) uikit::cancel_every_touch();
  };
  move({60, 60}, 0);
  EXPECT_EQ(told(), (Events{"edge moved", "view cancelled", "edge cancelled"}))
      << "the other finger has no owner";
}

TEST_F(TouchTest, TurningTheScreenOffCancelsFingersOfTheSystemToo) {
  GreedyGestures edge("edge", UITouchPhaseMoved);
  press({50, 50});
  move({60, 60});
  told();
  uikit::set_touches_enabled(false);
  lift({60, 60});
  press({50, 50});
  move({90, 50});
  uikit::set_touches_enabled(true);
  lift({90, 50});
  EXPECT_EQ(told(), Events{"edge cancelled"});
}

TEST_F(TouchTest, ThePreviousOwnerOfAFingerSeesItCancelled) {
  GreedyGestures early("early", UITouchPhaseBegan);
  GreedyGestures late("late", UITouchPhaseMoved);
  press({50, 50});
  told();
  move({60, 60});
  lift({60, 60});
  EXPECT_EQ(told(),
            (Events{"early moved", "late moved", "early cancelled", "early ended", "late ended"}));
}

TEST_F(TouchTest, AViewSeesOneFingerUnlessItEnablesMultipleTouch) {
  press({10, 10}, 0);
  press({20, 20}, 1);
  EXPECT_EQ(told(), Events{"view began"});
  lift({20, 20}, 1);
  lift({10, 10}, 0);
  EXPECT_EQ(told(), Events{"view ended"});
  view.setMultipleTouchEnabled(YES);
  press({10, 10}, 0);
  press({20, 20}, 1);
  EXPECT_EQ(told(), (Events{"view began", "view began"}));
}

TEST_F(TouchTest, AnExclusiveViewSharesItsWindowWithNoOther) {
  const auto other = RecordingView::make("other", {100, 0, 100, 100});
  window.addSubview(other);
  other.setExclusiveTouch(YES);
  told();
  press({10, 10}, 0);
  press({110, 10}, 1);
  EXPECT_EQ(told(), Events{"view began"});
}

TEST_F(TouchTest, GoesToTheWindowOfTheHighestLevelThatTakesIt) {
  const UIWindow high = UIWindow::alloc().initWithFrame(kScreen);
  high.setWindowLevel(UIWindowLevelAlert);
  high.setHidden(NO);
  press({50, 50});
  EXPECT_EQ(told(), Events{}) << "the window above swallows it";
  lift({50, 50});
  high.setUserInteractionEnabled(NO);
  press({50, 50});
  EXPECT_EQ(told(), Events{"view began"});
  lift({50, 50});
  high.setHidden(YES);
  high.release();
}

TEST_F(TouchTest, CountsQuickTapsInOnePlace) {
  const auto count_after = [this](double pause, CGPoint point) {
    advance(pause);
    press(point);
    lift(point);
    return objc::state_of<RecordingView>(view).tap_count;
  };
  EXPECT_EQ(count_after(0, {50, 50}), 1u);
  EXPECT_EQ(count_after(0.2, {52, 50}), 2u);
  EXPECT_EQ(count_after(0.2, {50, 50}), 3u);
  EXPECT_EQ(count_after(0.2, {99, 99}), 1u) << "elsewhere";
  EXPECT_EQ(count_after(1, {99, 99}), 1u) << "too late";
  press({50, 50});
  uikit::cancel_every_touch();
  lift({50, 50});
  EXPECT_EQ(count_after(0.1, {50, 50}), 1u) << "a cancelled touch is not a tap";
  press({50, 50});
  uikit::cancel_touches_in(view);
  lift({50, 50});
  EXPECT_EQ(count_after(0.1, {50, 50}), 1u) << "nor is one cancelled in its view";
}

TEST_F(TouchTest, AFingerCancelledInItsViewIsIgnoredUntilItLifts) {
  const auto other = RecordingView::make("other", {100, 0, 100, 100});
  window.addSubview(other);
  told();
  press({50, 50}, 0);
  press({150, 50}, 1);
  told();
  uikit::cancel_touches_in(view);
  EXPECT_EQ(told(), Events{"view cancelled"}) << "the other view keeps its own";
  move({60, 60}, 0);
  lift({60, 60}, 0);
  lift({150, 50}, 1);
  EXPECT_EQ(told(), Events{"other ended"});
  tap({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

}  // namespace
}  // namespace host::test
