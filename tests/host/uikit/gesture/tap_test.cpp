#include "platform/UIKit/UILongPressGestureRecognizer.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

class TapTest : public UIKitTest {
 protected:
  TapTest()
      : view(RecordingView::make("view", {0, 0, 200, 200})),
        target(RecordingTarget::make("tap")),
        recognizer(RecordingTarget::add<UITapGestureRecognizer>(view, target.get())) {
    window.addSubview(view);
    told();
  }

  TestRecordingView view;
  objc::Ref<TestTarget> target;
  UITapGestureRecognizer recognizer;
};

TEST_F(TapTest, IsReportedOnceAndCancelsTheTouchInTheView) {
  tap({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view cancelled", "tap ended"}));
  advance(1);
  EXPECT_EQ(told(), Events{});
}

TEST_F(TapTest, ReportsItsLocation) {
  CGPoint location;
  objc::state_of<RecordingTarget>(target.get()).on_gesture = [&](UIGestureRecognizer tap) {
    location = tap.locationInView(window);
  };
  tap({50, 60});
  EXPECT_EQ(location, (CGPoint{50, 60}));
}

TEST_F(TapTest, AFingerThatStaysTooLongDoesNotTap) {
  press({50, 50});
  advance(0.8);
  lift({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

TEST_F(TapTest, AFingerThatStraysDoesNotTap) {
  press({50, 50});
  move({96, 50});
  lift({96, 50});
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view ended"}));
}

TEST_F(TapTest, ADoubleTapWaitsForItsCount) {
  recognizer.setNumberOfTapsRequired(2);
  tap({50, 50});
  EXPECT_EQ(told(), Events{"view began"}) << "the end is delayed: it may become a double tap";
  advance(0.2);
  tap({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view cancelled", "view cancelled", "tap ended"}));
}

TEST_F(TapTest, ADoubleTapThatComesTooLateIsTwoTaps) {
  recognizer.setNumberOfTapsRequired(2);
  tap({50, 50});
  advance(0.4);
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
  tap({50, 50});
  advance(0.4);
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

TEST_F(TapTest, ASingleTapIsReportedBeforeADoubleTapUnlessItWaits) {
  const auto twice_target = RecordingTarget::make("double");
  const auto twice = RecordingTarget::add<UITapGestureRecognizer>(view, twice_target.get());
  twice.setNumberOfTapsRequired(2);
  recognizer.setCancelsTouchesInView(NO);
  tap({50, 50});
  advance(0.1);
  tap({50, 50});
  advance(1);
  auto heard = told();
  std::erase_if(heard, [](const auto& event) { return event.starts_with("view"); });
  EXPECT_EQ(heard, (Events{"tap ended", "tap ended", "double ended"}));

  recognizer.requireGestureRecognizerToFail(twice);
  tap({50, 50});
  advance(0.1);
  tap({50, 50});
  advance(1);
  heard = told();
  std::erase_if(heard, [](const auto& event) { return event.starts_with("view"); });
  EXPECT_EQ(heard, Events{"double ended"});

  tap({50, 50});
  EXPECT_EQ(told(), Events{"view began"});
  advance(0.4);
  heard = told();
  std::erase_if(heard, [](const auto& event) { return event.starts_with("view"); });
  EXPECT_EQ(heard, Events{"tap ended"}) << "once the double tap can no longer come";
}

TEST_F(TapTest, TwoFingersTapTogether) {
  recognizer.setNumberOfTouchesRequired(2);
  tap({50, 50});
  advance(1);
  told();
  press({50, 50}, 0);
  press({90, 50}, 1);
  lift({50, 50}, 0);
  lift({90, 50}, 1);
  EXPECT_EQ(events().back(), "tap ended");
}

TEST_F(TapTest, ADelegateMayRefuseATouch) {
  recognizer.setDelegate(target.get());
  objc::state_of<RecordingTarget>(target.get()).receives_touches = NO;
  tap({50, 50});
  EXPECT_EQ(told(), (Events{"view began", "view ended"}));
}

class LongPressTest : public UIKitTest {
 protected:
  LongPressTest()
      : view(RecordingView::make("view", {0, 0, 200, 200})),
        target(RecordingTarget::make("press")) {
    RecordingTarget::add<UILongPressGestureRecognizer>(view, target.get());
    window.addSubview(view);
    told();
  }
  TestRecordingView view;
  objc::Ref<TestTarget> target;
};

TEST_F(LongPressTest, BeginsAfterHalfASecondAndFollowsTheFinger) {
  press({50, 50});
  advance(0.49);
  EXPECT_EQ(told(), Events{"view began"});
  advance(0.02);
  EXPECT_EQ(told(), (Events{"view cancelled", "press began"}));
  move({150, 50});
  lift({150, 50});
  EXPECT_EQ(told(), (Events{"press changed", "press ended"}));
}

TEST_F(LongPressTest, AFingerThatStraysOrLiftsDoesNotPress) {
  press({50, 50});
  move({61, 50});
  advance(1);
  lift({61, 50});
  press({50, 50});
  advance(0.3);
  lift({50, 50});
  advance(1);
  EXPECT_EQ(told(), (Events{"view began", "view moved", "view ended", "view began", "view ended"}));
}

}  // namespace
}  // namespace host::test
