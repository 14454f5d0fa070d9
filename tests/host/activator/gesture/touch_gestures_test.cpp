#include "host/activator/gesture/touch_gestures.h"

#include <gmock/gmock.h>

#include "tests/host/uikit/support/recording_view.h"
#include "tests/host/uikit/support/uikit_test.h"

namespace host::test {
namespace {

using activator::TouchGestures;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TouchGesturesTest : public UIKitTest {
 protected:
  TouchGesturesTest()
      : gestures(loop, kScreen.size, [this](const char* event) {
          recognized.emplace_back(event);
          return has_listener;
        }) {
    uikit::add_system_gestures(&gestures);
    view = add_recording_view();
    told();
  }
  ~TouchGesturesTest() override { uikit::remove_system_gestures(&gestures); }

  UIView add_recording_view() {
    const UIView made = RecordingView::make("view", kScreen);
    window.addSubview(made);
    return made;
  }

  TouchGestures gestures;
  std::vector<std::string> recognized;
  bool has_listener = true;
  UIView view;
};

TEST_F(TouchGesturesTest, ASlideLeavesTheViewThatTheFingerWasOn) {
  press({0, 300});
  glide({0, 300}, {80, 300}, 0.1);
  lift({80, 300});
  EXPECT_THAT(recognized, ElementsAre("slide-in-left"));
  const Events all = told();
  ASSERT_FALSE(all.empty());
  EXPECT_THAT(all.front(), testing::HasSubstr("began"));
  EXPECT_THAT(all.back(), testing::HasSubstr("cancelled"));
}

TEST_F(TouchGesturesTest, ASlideWithoutAListenerIsAnOrdinaryTouch) {
  has_listener = false;
  press({0, 300});
  glide({0, 300}, {80, 300}, 0.1);
  lift({80, 300});
  EXPECT_THAT(recognized, ElementsAre("slide-in-left"));
  EXPECT_THAT(told().back(), testing::HasSubstr("ended"));
}

TEST_F(TouchGesturesTest, TheNextTouchIsTheWindowsAgain) {
  press({0, 300});
  move({80, 300});
  lift({80, 300});
  told();
  tap({100, 300});
  EXPECT_THAT(told().back(), testing::HasSubstr("ended"));
}

TEST_F(TouchGesturesTest, ASecondFingerEndsTheSlide) {
  press({0, 300});
  press({200, 300}, 1);
  move({80, 300});
  lift({200, 300}, 1);
  lift({80, 300});
  EXPECT_THAT(recognized, IsEmpty());
}

TEST_F(TouchGesturesTest, TwoTapsOnTheStatusBar) {
  tap({180, 10});
  EXPECT_THAT(recognized, IsEmpty());
  advance(0.1);
  tap({182, 12});
  EXPECT_THAT(recognized, ElementsAre("status-bar-double-tap"));
}

TEST_F(TouchGesturesTest, TapsThatAreLateOrBelowTheStatusBarAreNotADoubleTap) {
  tap({180, 10});
  advance(0.5);
  tap({180, 10});
  advance(0.5);
  tap({180, 25});
  advance(0.1);
  tap({180, 10});
  EXPECT_THAT(recognized, IsEmpty());
}

TEST_F(TouchGesturesTest, AHoldOfTheStatusBarIsRecognizedWhileTheFingerIsDown) {
  press({180, 10});
  advance(0.55);
  EXPECT_THAT(recognized, IsEmpty());
  advance(0.1);
  EXPECT_THAT(recognized, ElementsAre("status-bar-hold"));
  told();
  lift({180, 10});
  EXPECT_THAT(told().back(), testing::HasSubstr("cancelled"));
}

TEST_F(TouchGesturesTest, AFingerThatHeldTheStatusBarCannotSlide) {
  press({180, 10});
  advance(0.7);
  glide({180, 10}, {180, 90}, 0.1);
  lift({180, 90});
  EXPECT_THAT(recognized, ElementsAre("status-bar-hold"));
}

TEST_F(TouchGesturesTest, AHoldEndsWithItsRecogniser) {
  {
    TouchGestures others(loop, kScreen.size, [this](const char* event) {
      recognized.emplace_back(event);
      return true;
    });
    others.touch(0, UITouchPhaseBegan, {180, 10}, clock.now());
  }
  advance(1);
  EXPECT_THAT(recognized, IsEmpty());
}

TEST_F(TouchGesturesTest, AMovingOrLiftedFingerHoldsNothing) {
  press({180, 10});
  move({195, 10});
  advance(1);
  lift({195, 10});
  tap({180, 10});
  advance(1);
  EXPECT_THAT(recognized, IsEmpty());
}

TEST_F(TouchGesturesTest, ACancelledFingerMakesNoGesture) {
  press({180, 10});
  input.cancelled(0, {180, 10}, clock.now());
  advance(1);
  EXPECT_THAT(recognized, IsEmpty());
}

}  // namespace
}  // namespace host::test
