#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UISwitch.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/uikit_test.h"
#include "tests/support/photograph.h"

namespace host::test {
namespace {

constexpr CGPoint kLeft{112, 115};
constexpr CGPoint kRight{140, 115};

class SwitchTest : public UIKitTest {
 protected:
  SwitchTest() {
    window.setBackgroundColor(UIColor::whiteColor());
    control = make_switch({100, 100});
    target = RecordingTarget::make("switch");
    control.addTarget(target.get(), "press"_sel, UIControlEventValueChanged);
    advance(0.1);
  }
  UISwitch make_switch(CGPoint origin) {
    const auto made = UISwitch::alloc().initWithFrame({origin, {0, 0}}).autorelease();
    window.addSubview(made);
    return made;
  }
  static UIView knob(UISwitch of) { return objc::cast<UIView>(of.subviews().lastObject()); }

  UISwitch control;
  objc::Ref<TestTarget> target;
};

TEST_F(SwitchTest, HasAFixedSize) {
  EXPECT_EQ(control.frame(), (CGRect{100, 100, 51, 31}));
  control.setFrame({10, 20, 300, 200});
  EXPECT_EQ(control.frame(), (CGRect{10, 20, 51, 31}));
  EXPECT_EQ(control.sizeThatFits({1, 1}), (CGSize{51, 31}));
}

TEST_F(SwitchTest, ATapTurnsItOnAndAnotherOff) {
  tap(kLeft);
  EXPECT_TRUE(control.isOn());
  EXPECT_EQ(told(), Events{"switch pressed"});
  advance(1);
  tap(kLeft);
  EXPECT_FALSE(control.isOn());
  EXPECT_EQ(told(), Events{"switch pressed"});
}

TEST_F(SwitchTest, ADragMovesTheKnobAndSendsTheActionWhenTheFingerLifts) {
  press(kLeft);
  glide(kLeft, kRight, 0.2);
  EXPECT_FALSE(control.isOn()) << "not before the finger lifts";
  EXPECT_EQ(told(), Events{});
  lift(kRight);
  EXPECT_TRUE(control.isOn());
  EXPECT_EQ(told(), Events{"switch pressed"});
}

TEST_F(SwitchTest, AFingerThatComesBackChangesNothing) {
  press(kLeft);
  glide(kLeft, kRight, 0.2);
  glide(kRight, kLeft, 0.2);
  lift(kLeft);
  EXPECT_FALSE(control.isOn());
  EXPECT_EQ(told(), Events{});
}

TEST_F(SwitchTest, ACancelledTouchLeavesItAsItWas) {
  press(kLeft);
  glide(kLeft, kRight, 0.2);
  input.cancel_all(clock.now());
  advance(1);
  EXPECT_FALSE(control.isOn());
  EXPECT_LT(knob(control).frame().min_x(), 10);
  EXPECT_EQ(told(), Events{});
}

TEST_F(SwitchTest, SettingItByProgramSendsNoAction) {
  control.setOn(YES, YES);
  EXPECT_TRUE(control.isOn());
  advance(1);
  EXPECT_GT(knob(control).frame().min_x(), 20);
  control.setOn(NO);
  EXPECT_LT(knob(control).frame().min_x(), 10);
  EXPECT_EQ(told(), Events{});
}

TEST_F(SwitchTest, ADisabledOneCannotBeTurned) {
  control.setEnabled(NO);
  tap(kLeft);
  EXPECT_FALSE(control.isOn());
}

TEST_F(SwitchTest, ThePressedKnobStretchesTowardsTheOtherSide) {
  press(kLeft);
  advance(1);
  EXPECT_GT(knob(control).bounds().size.width, 30);
  lift(kLeft);
  advance(1);
  EXPECT_EQ(knob(control).bounds().size.width, 28);
}

TEST_F(SwitchTest, TheFillHasTheTintOrIsGreenWithoutOne) {
  UIGraphicsBeginImageContextWithOptions({8, 8}, YES, 2);
  UIColor::orangeColor().setFill();
  UIRectFill({0, 0, 8, 8});
  UIColor::purpleColor().setFill();
  UIRectFill({0, 0, 4, 4});
  UIRectFill({4, 4, 4, 4});
  const UIColor pattern =
      UIColor::colorWithPatternImage(UIGraphicsGetImageFromCurrentImageContext());
  UIGraphicsEndImageContext();
  control.setOnTintColor(pattern);
  control.setOn(YES);
  const auto fill = objc::cast<UIView>(control.subviews().objectAtIndex(2));
  EXPECT_TRUE(fill.backgroundColor().isEqual(pattern));
  EXPECT_EQ(fill.alpha(), 1);

  make_switch({170, 100}).setOn(YES);
  make_switch({100, 150});
  make_switch({170, 150});
  press({180, 165});
  const auto disabled = make_switch({100, 200});
  disabled.setOn(YES);
  disabled.setEnabled(NO);
  advance(1);
  photograph("switches", clock.now());
  lift({180, 165});

  control.setOnTintColor(nil);
  double red = 1, green = 0;
  fill.backgroundColor().getRed(&red, &green, nullptr, nullptr);
  EXPECT_GT(green, red);
}

}  // namespace
}  // namespace host::test
