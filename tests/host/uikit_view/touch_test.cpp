#include "tests/host/uikit_view/recording_view.h"

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

TEST_F(TouchTest, KeepsItsFirstViewForLife) {
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

TEST_F(TouchTest, TheSystemMayTakeItAway) {
  press({50, 50});
  input.cancel_all(clock.now());
  EXPECT_EQ(told(), (Events{"view began", "view cancelled"}));
}

TEST_F(TouchTest, AViewSeesOneFingerUnlessItAsksForMore) {
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

TEST_F(TouchTest, CountsTapsInOnePlaceThatFollowSoon) {
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
}

}  // namespace
}  // namespace host::test
