#include "objc/class_builder.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UITouch.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

UIView touched_view;

UIView view_of_touch(objc::Object) {
  return touched_view;
}

class GestureDelegate : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    objc::ClassBuilder("TouchOnAView", "NSObject").method<&view_of_touch>("view").finish();
    objc::ClassBuilder("RoundButton", "UIButton").finish();
  }

  /// Whether the delegate accepts a touch on `touched`.
  BOOL receives(UIView touched) const {
    touched_view = touched;
    const auto touch =
        objc::send<objc::Object>(objc::Object(objc_getClass("TouchOnAView")), "new"_sel);
    return objc::send<BOOL>(application, "gestureRecognizer:shouldReceiveTouch:"_sel,
                            view("main").gestureRecognizers().firstObject(), touch);
  }
};

TEST_F(GestureDelegate, ATouchOnAButtonStartsNoDragAndNoTap) {
  EXPECT_EQ(receives(view("play")), NO);
  const auto derived = objc::send<UIView>(objc::Object(objc_getClass("RoundButton")), "new"_sel);
  EXPECT_EQ(receives(derived), NO);
}

TEST_F(GestureDelegate, EveryOtherTouchIsReceived) {
  for (const char* name : {"main", "music", "art", "ring"})
    EXPECT_EQ(receives(view(name)), YES) << name;
  EXPECT_EQ(receives(nil), YES);
}

TEST_F(GestureDelegate, NoTwoGesturesAreSimultaneous) {
  const auto one = view("main").gestureRecognizers().firstObject();
  const auto other = view("music").gestureRecognizers().lastObject();
  EXPECT_EQ(
      objc::send<BOOL>(application,
                       "gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:"_sel,
                       one, other),
      NO);
}

}  // namespace
}  // namespace host::test
