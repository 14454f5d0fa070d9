#include "host/uikit/navigation/page_slide.h"

#include "platform/CoreGraphics/CGRect.h"
#include "platform/QuartzCore/CAGradientLayer.h"

namespace host::uikit {
namespace {

constexpr CGFloat kLowerShare = 1.0 / 3;
constexpr CGFloat kShadeAlpha = 0.1;
constexpr CGFloat kEdgeWidth = 9;
constexpr CGFloat kEdgeAlpha = 0.12;

objc::Ref<UIView> make_shade(CGRect place) {
  auto shade = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(place));
  shade->setBackgroundColor(UIColor::blackColor());
  return shade;
}

/// The shadow that the upper page casts to its left.
objc::Ref<UIView> make_edge(CGFloat height) {
  auto edge = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({0, 0, kEdgeWidth, height}));
  const CAGradientLayer fade = CAGradientLayer::layer();
  fade.setFrame(edge->bounds());
  fade.setColors(NSArray::arrayWithObjects(
      objc::Object(reinterpret_cast<objc::Id>(UIColor::colorWithWhite(0, 0).CGColor())),
      objc::Object(reinterpret_cast<objc::Id>(UIColor::colorWithWhite(0, kEdgeAlpha).CGColor()))));
  fade.setStartPoint({0, 0.5});
  fade.setEndPoint({1, 0.5});
  edge->layer().addSublayer(fade);
  return edge;
}

}  // namespace

PageSlide::PageSlide(UIView container, UIView upper, UIView lower)
    : place_(container.bounds()),
      upper_(objc::Ref<UIView>::retain(upper)),
      lower_(objc::Ref<UIView>::retain(lower)),
      shade_(make_shade(place_)),
      edge_(make_edge(place_.size.height)) {
  for (const UIView part : {lower, shade_.get(), edge_.get(), upper})
    container.addSubview(part);
}

PageSlide::~PageSlide() {
  shade_->removeFromSuperview();
  edge_->removeFromSuperview();
}

void PageSlide::show(CGFloat share) const {
  const CGFloat left = (1 - share) * place_.size.width;
  upper_->setFrame(CGRectOffset(place_, left, 0));
  lower_->setFrame(CGRectOffset(place_, -share * place_.size.width * kLowerShare, 0));
  shade_->setFrame(lower_->frame());
  shade_->setAlpha(share * kShadeAlpha);
  edge_->setFrame(
      {place_.min_x() + left - kEdgeWidth, place_.min_y(), kEdgeWidth, place_.size.height});
  edge_->setAlpha(share);
}

}  // namespace host::uikit
