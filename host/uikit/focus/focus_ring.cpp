#include "host/uikit/focus/focus_ring.h"

#include <algorithm>

#include "host/runtime/device_model.h"
#include "host/uikit/focus/focus_stops.h"
#include "platform/CoreGraphics/CGRect.h"
#include "platform/QuartzCore/CATransaction.h"
#include "platform/UIKit/UIColor.h"

namespace host::uikit {
namespace {

// The light edge is seen on dark ground, the accent on light ground.
constexpr CGFloat kEdge = 1;
constexpr CGFloat kAccent = 2.5;
// Between the view and the accent.
constexpr CGFloat kAir = 1;
constexpr CGFloat kOutset = kEdge + kAccent + kAir;
// The corners of a view that has none of its own.
constexpr CGFloat kPlainRadius = 7;

UIColor edge_color() {
  return UIColor::colorWithWhite(1, 0.85);
}

UIColor accent_color() {
  return UIColor::colorWithRed(0, 0.478, 1, 1);
}

/// The rounding of the view, or of a part that fills it.
CGFloat radius_of(UIView view) {
  CGFloat radius = view.layer().cornerRadius();
  for (const UIView part : view.subviews().of<UIView>()) {
    if (CGRect(part.frame()) == CGRect(view.bounds()))
      radius = std::max(radius, part.layer().cornerRadius());
  }
  return radius > 0 ? radius : kPlainRadius;
}

/// Nothing of the ring lies beyond the edges of the screen, where rows of a table end.
CGRect ring_around(CGRect place) {
  const CGRect screen{0, 0, current_device().width, current_device().height};
  return CGRectIntersection(CGRectInset(place, -kOutset, -kOutset), screen);
}

void set_border(CALayer layer, CGRect frame, CGFloat radius, CGFloat width, UIColor color) {
  layer.setFrame(frame);
  layer.setCornerRadius(std::min({radius, frame.size.width / 2, frame.size.height / 2}));
  layer.setBorderWidth(width);
  layer.setBorderColor(color.CGColor());
}

}  // namespace

void FocusRing::show_around(UIView view) {
  const CGRect frame = ring_around(place_in(view, nil));
  if (layer_ && CGRect(layer_->frame()) == frame) return;
  CATransaction::begin();
  CATransaction::setDisableActions(YES);
  if (!layer_) {
    layer_.reset(CALayer::layer());
    inner_.reset(CALayer::layer());
    layer_->addSublayer(*inner_);
  }
  const CGFloat radius = radius_of(view) + kOutset;
  set_border(*layer_, frame, radius, kEdge, edge_color());
  set_border(*inner_, {kEdge, kEdge, frame.size.width - 2 * kEdge, frame.size.height - 2 * kEdge},
             radius - kEdge, kAccent, accent_color());
  CATransaction::commit();
}

}  // namespace host::uikit
