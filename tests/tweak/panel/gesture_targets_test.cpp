#include "platform/UIKit/UITextField.h"
#include "platform/UIKit/UIWindow.h"
#include "tests/tweak/method_spy.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

class GestureTargets : public PanelTest {
 protected:
  void SetUp() override {
    use_no_songs();
    launch();
    open_panel();
  }
};

TEST_F(GestureTargets, ATapOnTheTwinSharesTheSong) {
  const MethodSpy<"tweet", void(SpringBoard)> shared(SpringBoard::cls());
  tap_on(view("music"));
  EXPECT_EQ(shared.count(), 1);
  EXPECT_TRUE(is("isShow"));
}

TEST_F(GestureTargets, ATapOnTheRingCountsAsATapOnPlay) {
  const MethodSpy<"playStop", void(SpringBoard)> toggled(SpringBoard::cls());
  tap_on(view("ring"));
  EXPECT_EQ(toggled.count(), 1);
}

TEST_F(GestureTargets, OneTapOnTheArtworkShowsNoTableAndTwoDo) {
  const MethodSpy<"showTable", void(SpringBoard)> shown(SpringBoard::cls());
  tap_on(view("art"));
  settle();
  EXPECT_EQ(shown.count(), 0);
  tap_on(view("art"));
  advance(0.1);
  tap_on(view("art"));
  EXPECT_EQ(shown.count(), 1);
}

TEST_F(GestureTargets, ThePanOnTheGrabberMovesTheBanner) {
  const MethodSpy<"presentBanner:", void(SpringBoard, objc::Object)> pulled(SpringBoard::cls());
  view("grabbers").setHidden(NO);
  // Above the screen's edge, where a touch would bring the control centre.
  const CGPoint middle = middle_of(view("grabbers"));
  hold({middle.x, middle.y - 6});
  move_by(0, -12);
  move_by(0, -12);
  lift();
  ASSERT_GE(pulled.count(), 1);
  EXPECT_EQ(std::get<0>(pulled.last()), view("grabbers").gestureRecognizers().firstObject());
}

TEST_F(GestureTargets, TypingReachesTheSearch) {
  const MethodSpy<"textDidChange:", void(SpringBoard, objc::Object)> searched(SpringBoard::cls());
  const auto field = global<UITextField>("searchBar");
  ASSERT_TRUE(field.becomeFirstResponder());
  field.insertText("a"_ns);
  ASSERT_EQ(searched.count(), 1);
  EXPECT_EQ(std::get<0>(searched.last()), field);
}

}  // namespace
}  // namespace host::test
