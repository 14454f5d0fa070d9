#include "host/uikit/text/clear_button.h"

#include "platform/UIKit/UIBezierPath.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::uikit {
namespace {

constexpr CGFloat kDiameter = 14;
constexpr CGFloat kCrossMargin = 4.5;
constexpr CGFloat kCrossWidth = 1.2;
constexpr CGFloat kDiscWhite = 0.56;

UIImage clear_picture() {
  UIGraphicsBeginImageContextWithOptions({kDiameter, kDiameter}, NO, 0);
  UIColor::colorWithWhite(kDiscWhite, 1).setFill();
  UIBezierPath::bezierPathWithOvalInRect({0, 0, kDiameter, kDiameter}).fill();
  UIColor::whiteColor().setStroke();
  const UIBezierPath cross = UIBezierPath::bezierPath();
  const CGFloat far = kDiameter - kCrossMargin;
  cross.moveToPoint({kCrossMargin, kCrossMargin});
  cross.addLineToPoint({far, far});
  cross.moveToPoint({far, kCrossMargin});
  cross.addLineToPoint({kCrossMargin, far});
  cross.setLineWidth(kCrossWidth);
  cross.setLineCapStyle(kCGLineCapRound);
  cross.stroke();
  const UIImage picture = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return picture;
}

}  // namespace

UIButton make_clear_button(UITextField field) {
  const UIButton button = UIButton::buttonWithType(UIButtonTypeCustom);
  button.setImage(clear_picture(), UIControlStateNormal);
  button.addTarget(field, "_clearButtonClicked:"_sel, UIControlEventTouchUpInside);
  return button;
}

}  // namespace host::uikit
