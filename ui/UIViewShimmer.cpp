#include "ui/UIViewShimmer.h"

#include <limits>

#include "objc/class_builder.h"
#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "platform/QuartzCore/CAGradientLayer.h"
#include "platform/UIKit/UIColor.h"

namespace sonavue {
namespace {

constexpr double kSweep = 5;  // seconds
constexpr CGFloat kFaintest = 0.1;
// The axis is slightly tilted, and longer than the layer to make the band wide and soft.
constexpr CGPoint kAxisStart = {0, 0.5};
constexpr CGPoint kAxisEnd = {2.5, 0.525};

NSArray three_numbers(double first, double second, double third) {
  return NSArray::arrayWithObjects(NSNumber::numberWithDouble(first),
                                   NSNumber::numberWithDouble(second),
                                   NSNumber::numberWithDouble(third));
}

/// The CGColor of `color` as an object, for an array.
objc::Object as_object(UIColor color) {
  return objc::Object(reinterpret_cast<objc::Id>(color.CGColor()));
}

CAGradientLayer band(CGSize size) {
  const CAGradientLayer mask = CAGradientLayer::layer();
  const UIColor opaque = UIColor::blackColor();
  // Only the alpha of a mask matters.
  const UIColor faint = UIColor::colorWithWhite(0, kFaintest);
  mask.setColors(NSArray::arrayWithObjects(as_object(opaque), as_object(faint), as_object(opaque)));
  // Space on both sides, so that the band can enter and leave.
  mask.setFrame({-size.width, 0, 3 * size.width, size.height});
  mask.setStartPoint(kAxisStart);
  mask.setEndPoint(kAxisEnd);
  mask.setLocations(three_numbers(0.4, 0.5, 0.6));
  return mask;
}

CABasicAnimation sweep() {
  const CABasicAnimation animation = CABasicAnimation::animationWithKeyPath("locations"_ns);
  animation.setFromValue(three_numbers(0, 0.1, 0.2));
  animation.setToValue(three_numbers(0.8, 0.9, 1));
  animation.setDuration(kSweep);
  animation.setRepeatCount(std::numeric_limits<float>::infinity());
  return animation;
}

}  // namespace

void startShimmering(UIView view) {
  const CAGradientLayer mask = band(view.bounds().size);
  view.layer().setMask(mask);
  mask.addAnimation(sweep(), "shimmer"_ns);
}

void stopShimmering(UIView view) {
  view.layer().setMask(nil);
}

void make_shimmer() {
  objc::add_method<&startShimmering>(UIView::cls(), "startShimmering");
  objc::add_method<&stopShimmering>(UIView::cls(), "stopShimmering");
}

}  // namespace sonavue
