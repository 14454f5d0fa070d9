#include "host/uikit/shortcuts/shortcuts.h"
#include "platform/UIKit/UIAlertView.h"
#include "platform/UIKit/UISwitch.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "platform/UIKit/UITextField.h"
#include "tests/host/uikit/focus/focus_test.h"

namespace host::test {
namespace {

using testing::ElementsAre;

constexpr CGRect kFirst{20, 60, 100, 40};
constexpr CGRect kSecond{140, 60, 100, 40};
constexpr CGRect kThird{20, 160, 100, 40};

TEST_F(FocusTest, NoRingIsSeenUntilAKeyMovesTheFocus) {
  add_button(window, "first", kFirst);
  advance(0.1);
  EXPECT_FALSE(focus.ring());
  EXPECT_FALSE(key("return"));
  EXPECT_FALSE(key("control-f"));
  EXPECT_TRUE(key("tab"));
  EXPECT_TRUE(focus.ring());
}

TEST_F(FocusTest, TabWalksInTheOrderOfReadingAndBeginsAgain) {
  const UIButton third = add_button(window, "third", kThird);
  const UIButton second = add_button(window, "second", kSecond);
  const UIButton first = add_button(window, "first", kFirst);
  for (const UIButton expected : {first, second, third, first}) {
    key("tab");
    EXPECT_EQ(focus.view(), expected);
  }
  key("shift-tab");
  EXPECT_EQ(focus.view(), third);
}

TEST_F(FocusTest, ShiftTabBeginsAtTheEnd) {
  add_button(window, "first", kFirst);
  const UIButton last = add_button(window, "last", kThird);
  key("shift-tab");
  EXPECT_EQ(focus.view(), last);
}

TEST_F(FocusTest, ArrowsGoToTheNeighbourOrNowhere) {
  const UIButton first = add_button(window, "first", kFirst);
  const UIButton second = add_button(window, "second", kSecond);
  const UIButton third = add_button(window, "third", kThird);
  key("down");
  EXPECT_EQ(focus.view(), first);
  key("right");
  EXPECT_EQ(focus.view(), second);
  EXPECT_FALSE(key("right"));
  EXPECT_EQ(focus.view(), second);
  key("left");
  key("down");
  EXPECT_EQ(focus.view(), third);
  key("up");
  EXPECT_EQ(focus.view(), first);
}

TEST_F(FocusTest, OnlyWhatAFingerWouldPressIsAStop) {
  add_button(window, "hidden", {20, 20, 40, 20}).setHidden(YES);
  add_button(window, "disabled", {80, 20, 40, 20}).setEnabled(NO);
  add_button(window, "outside", {-200, 20, 40, 20});
  add_button(window, "covered", {140, 20, 40, 20});
  add_view({130, 10, 60, 40});
  const UIView closed = add_view({200, 10, 60, 40});
  closed.setUserInteractionEnabled(NO);
  add_button(closed, "closed", {0, 0, 40, 20});
  const UIButton free = add_button(window, "free", kThird);
  key("tab");
  EXPECT_EQ(focus.view(), free);
  key("tab");
  EXPECT_EQ(focus.view(), free);
}

TEST_F(FocusTest, ViewsWithATapAreStops) {
  const auto target = RecordingTarget::make("tap");
  const UIView tapped = add_view(kFirst);
  add_view(kSecond);
  const auto tap = RecordingTarget::add<UITapGestureRecognizer>(tapped, *target);
  key("tab");
  EXPECT_EQ(focus.view(), tapped);
  press();
  EXPECT_THAT(told(), ElementsAre("tap ended"));
  tap.setEnabled(NO);
  focus.end();
  EXPECT_FALSE(key("tab"));
}

TEST_F(FocusTest, AGroundWithATapIsNoStopWhereAnotherIsInItsMiddle) {
  const auto target = RecordingTarget::make("ground");
  const UIView ground = add_view({0, 0, 300, 300});
  RecordingTarget::add<UITapGestureRecognizer>(ground, *target);
  const UIButton button = add_button(ground, "button", {100, 100, 100, 100});
  key("tab");
  EXPECT_EQ(focus.view(), button);
  key("tab");
  EXPECT_EQ(focus.view(), button);
}

TEST_F(FocusTest, ReturnPressesAsAFingerDoes) {
  const UIButton button = add_button(window, "button", kFirst);
  key("tab");
  EXPECT_TRUE(focus.press_key("return"));
  EXPECT_EQ(button.isHighlighted(), YES);
  EXPECT_THAT(told(), ElementsAre());
  advance(0.3);
  EXPECT_THAT(told(), ElementsAre("button pressed"));
  EXPECT_TRUE(focus.ring());
  press();
  EXPECT_THAT(told(), ElementsAre("button pressed"));
}

TEST_F(FocusTest, ASwitchKeepsTheFocusWhileItMoves) {
  const UISwitch plain = UISwitch::alloc().initWithFrame({100, 100, 0, 0}).autorelease();
  window.addSubview(plain);
  key("tab");
  press();
  EXPECT_EQ(plain.isOn(), YES);
  EXPECT_TRUE(focus.ring());
  advance(1);
  press();
  EXPECT_EQ(plain.isOn(), NO);
}

TEST_F(FocusTest, NothingIsLeftWhenItEnds) {
  add_button(window, "button", kFirst);
  key("tab");
  uikit::end_focus();
  EXPECT_FALSE(focus.ring());
  EXPECT_FALSE(focus.view());
  EXPECT_FALSE(key("return"));
}

TEST_F(FocusTest, TheRingGoesWithItsView) {
  const UIButton button = add_button(window, "button", kFirst);
  key("tab");
  button.removeFromSuperview();
  advance(0.1);
  EXPECT_FALSE(focus.ring());
  EXPECT_FALSE(focus.view());
}

TEST_F(FocusTest, TheRingHidesWhileSomethingCoversItsView) {
  const UIButton button = add_button(window, "button", kFirst);
  key("tab");
  const UIView cover = add_view(kScreen);
  advance(0.1);
  EXPECT_FALSE(focus.ring());
  EXPECT_FALSE(key("return"));
  cover.removeFromSuperview();
  advance(0.1);
  EXPECT_TRUE(focus.ring());
  EXPECT_EQ(focus.view(), button);
}

TEST_F(FocusTest, TheRingIsNoViewAndFollowsItsView) {
  const UIButton button = add_button(window, "button", kFirst);
  const auto views = window.subviews().count();
  const auto layers_before = window.layer().sublayers().count();
  const auto windows = uikit::visible_windows().size();
  key("tab");
  EXPECT_EQ(window.subviews().count(), views);
  EXPECT_EQ(window.layer().sublayers().count(), layers_before);
  EXPECT_EQ(button.layer().sublayers().count(), 0u);
  EXPECT_EQ(uikit::visible_windows().size(), windows);
  const CGRect before = ring();
  EXPECT_LT(before.min_x(), kFirst.min_x());
  EXPECT_GT(before.max_y(), kFirst.max_y());
  button.setFrame({kFirst.min_x() + 30, kFirst.min_y(), 100, 40});
  advance(0.1);
  EXPECT_EQ(ring().min_x(), before.min_x() + 30);
}

TEST_F(FocusTest, TheRingIsRoundLikeItsViewAndStaysOnTheScreen) {
  const UIButton button = add_button(window, "button", {0, 100, 375, 40});
  button.layer().setCornerRadius(12);
  key("tab");
  EXPECT_GT(focus.ring().cornerRadius(), 12);
  EXPECT_EQ(ring().min_x(), 0);
  EXPECT_EQ(ring().max_x(), 375);
}

TEST_F(FocusTest, ButtonsOfBarsAndAlertsAreStops) {
  const auto navigation =
      UINavigationController::alloc().initWithRootViewController(ToldPage::make("First"));
  window.setRootViewController(navigation.autorelease());
  navigation.pushViewController(ToldPage::make("Second"), NO);
  advance(1);
  key("tab");
  press();
  advance(1);
  EXPECT_EQ(navigation.viewControllers().count(), 1u) << "the back button";
  const auto alert =
      objc::adopt(UIAlertView::alloc().initWithTitle("Title"_ns, "Message"_ns, nil, "Cancel"_ns));
  alert->show();
  advance(1);
  key("tab");
  press();
  advance(1);
  EXPECT_EQ(alert->isVisible(), NO);
}

TEST_F(FocusTest, AFieldKeepsItsKeysExceptTab) {
  const auto add_field = [this](CGRect frame) {
    const UITextField field = UITextField::alloc().initWithFrame(frame).autorelease();
    window.addSubview(field);
    return field;
  };
  const UITextField name = add_field(kFirst);
  const UITextField address = add_field(kThird);
  const UIButton button = add_button(window, "button", {20, 240, 100, 40});
  uikit::take_key("tab");
  EXPECT_EQ(focus.view(), name);
  EXPECT_EQ(name.isFirstResponder(), NO);
  press();
  EXPECT_EQ(name.isFirstResponder(), YES);
  for (const auto* of_field : {"left", "right", "up", "down"})
    uikit::take_key(of_field);
  EXPECT_EQ(focus.view(), name);
  uikit::take_key("tab");
  EXPECT_EQ(focus.view(), address);
  EXPECT_EQ(address.isFirstResponder(), YES) << "what is typed goes on in the next field";
  uikit::take_key("tab");
  EXPECT_EQ(focus.view(), button);
  EXPECT_EQ(address.isFirstResponder(), NO);
  uikit::take_key("shift-tab");
  EXPECT_EQ(focus.view(), address);
  EXPECT_EQ(address.isFirstResponder(), NO);
}

TEST_F(FocusTest, TabLeavesAFieldThatIsAlone) {
  const UITextField field = UITextField::alloc().initWithFrame(kFirst).autorelease();
  window.addSubview(field);
  field.becomeFirstResponder();
  EXPECT_TRUE(uikit::take_key("tab"));
  EXPECT_EQ(field.isFirstResponder(), NO);
  EXPECT_EQ(focus.view(), field);
}

}  // namespace
}  // namespace host::test
