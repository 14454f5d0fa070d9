#include "platform/CoreGraphics/CGContext.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/host/uikit/support/recording_target.h"

namespace host::test {
namespace {

class ControlTest : public UIKitTest {
 protected:
  ControlTest()
      : target(RecordingTarget::make("button")),
        button(UIButton::buttonWithType(UIButtonTypeCustom)) {
    button.setFrame({100, 100, 100, 40});
    window.addSubview(button);
  }
  void hear(UIControlEvents events, objc::Sel action = "press"_sel) {
    button.addTarget(target.get(), action, events);
  }

  objc::Ref<TestTarget> target;
  UIButton button;
};

UIImage make_square(CGFloat side) {
  UIGraphicsBeginImageContextWithOptions({side, side}, NO, 1);
  UIColor::blackColor().setFill();
  CGContextFillRect(UIGraphicsGetCurrentContext(), {0, 0, side, side});
  const UIImage image = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return image;
}

TEST_F(ControlTest, ATapSendsTouchUpInside) {
  hear(UIControlEventTouchUpInside);
  tap({150, 120});
  EXPECT_EQ(told(), Events{"button pressed"});
}

TEST_F(ControlTest, ActionsGetTheirArguments) {
  hear(UIControlEventTouchUpInside, "press:"_sel);
  hear(UIControlEventTouchUpInside, "press:event:"_sel);
  tap({150, 120});
  EXPECT_EQ(told(), (Events{"button pressed by sender", "button pressed with event"}));
  button.sendActionsForControlEvents(UIControlEventTouchUpInside);
  EXPECT_EQ(told(), (Events{"button pressed by sender", "button pressed without"}));
}

TEST_F(ControlTest, AFingerMayStraySeventyPointsAndIsStillInside) {
  hear(UIControlEventTouchUpInside);
  press({150, 120});
  EXPECT_TRUE(button.isHighlighted());
  move({150, 209});
  EXPECT_TRUE(button.isHighlighted());
  lift({150, 209});
  EXPECT_EQ(told(), Events{"button pressed"});
  press({150, 120});
  move({150, 211});
  EXPECT_FALSE(button.isHighlighted());
  EXPECT_FALSE(button.isTouchInside());
  lift({150, 211});
  EXPECT_EQ(told(), Events{});
}

TEST_F(ControlTest, LeavingAndComingBackAreReported) {
  hear(UIControlEventTouchDragExit);
  hear(UIControlEventTouchDragEnter, "press:"_sel);
  press({150, 120});
  move({150, 300});
  move({150, 310});
  move({150, 120});
  lift({150, 120});
  EXPECT_EQ(told(), (Events{"button pressed", "button pressed by sender"}));
}

TEST_F(ControlTest, ADisabledControlSendsNothing) {
  hear(UIControlEventAllTouchEvents);
  button.setEnabled(NO);
  tap({150, 120});
  EXPECT_EQ(told(), Events{});
}

TEST_F(ControlTest, ATargetMayBeRemoved) {
  hear(UIControlEventTouchUpInside | UIControlEventTouchDown);
  button.removeTarget(target.get(), "press"_sel, UIControlEventTouchDown);
  tap({150, 120});
  EXPECT_EQ(told(), Events{"button pressed"});
  button.removeTarget(nil, nullptr, UIControlEventAllEvents);
  tap({150, 120});
  EXPECT_EQ(told(), Events{});
  EXPECT_EQ(button.allControlEvents(), 0u);
}

TEST_F(ControlTest, ATapRecognizerOnAnAncestorLeavesTapsToTheButton) {
  hear(UIControlEventTouchUpInside);
  const auto above = RecordingTarget::make("above");
  RecordingTarget::add<UITapGestureRecognizer>(window, above.get());
  tap({150, 120});
  EXPECT_EQ(told(), Events{"button pressed"});
  tap({10, 10});
  EXPECT_EQ(told(), Events{"above ended"});
}

TEST_F(ControlTest, ATapRecognizerOnAViewInTheButtonWinsOverIt) {
  hear(UIControlEventTouchUpInside);
  const UIView ring = UIView::alloc().initWithFrame(button.bounds()).autorelease();
  button.addSubview(ring);
  const auto on_ring = RecordingTarget::make("ring");
  RecordingTarget::add<UITapGestureRecognizer>(ring, on_ring.get());
  tap({150, 120});
  EXPECT_EQ(told(), Events{"ring ended"});
}

TEST_F(ControlTest, AButtonShowsTheContentOfItsState) {
  button.setTitle("play"_ns, UIControlStateNormal);
  button.setTitle("pressed"_ns, UIControlStateHighlighted);
  EXPECT_STREQ(button.titleLabel().text().UTF8String(), "play");
  button.setHighlighted(YES);
  EXPECT_STREQ(button.titleLabel().text().UTF8String(), "pressed");
  button.setHighlighted(NO);
  EXPECT_STREQ(button.currentTitle().UTF8String(), "play");
}

TEST_F(ControlTest, AButtonsImageIsCentredScaledDownAndDimmed) {
  button.setImage(make_square(20), UIControlStateNormal);
  button.layoutIfNeeded();
  EXPECT_EQ(button.imageView().frame(), CGRect(40, 10, 20, 20));
  button.setImage(make_square(80), UIControlStateNormal);
  button.layoutIfNeeded();
  EXPECT_EQ(button.imageView().frame(), CGRect(10, 0, 80, 40));
  press({150, 120});
  EXPECT_LT(button.imageView().alpha(), 1);
  lift({150, 120});
  EXPECT_EQ(button.imageView().alpha(), 1);
}

TEST_F(ControlTest, ATemplateTakesTheTintAndIsDrawnOncePerColour) {
  const UIImage shape = make_square(4).imageWithRenderingMode(UIImageRenderingModeAlwaysTemplate);
  const UIImageView view = UIImageView::alloc().initWithImage(shape).autorelease();
  window.addSubview(view);
  view.setTintColor(UIColor::redColor());
  const objc::Object red = view.layer().contents();
  EXPECT_TRUE(red);
  EXPECT_NE(red.id(), reinterpret_cast<objc::Id>(shape.CGImage()));
  view.tintColorDidChange();
  EXPECT_EQ(view.layer().contents(), red);
  view.setTintColor(UIColor::greenColor());
  EXPECT_NE(view.layer().contents().id(), red.id());
}

TEST_F(ControlTest, AnImageViewTakesTheSizeOfItsImageAndNoTouches) {
  const UIImageView view = UIImageView::alloc().initWithImage(make_square(30)).autorelease();
  EXPECT_EQ(view.frame(), CGRect(0, 0, 30, 30));
  EXPECT_FALSE(view.isUserInteractionEnabled());
}

}  // namespace
}  // namespace host::test
