#include "host/uikit/view/autoresizing.h"
#include "host/uikit/view/view.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::uikit {
namespace {

// The intrinsic size, along an axis, of a view that has none.
constexpr CGFloat kNoIntrinsicMetric = -1;

}  // namespace

void View::set_needs_layout() {
  layer_->setNeedsLayout();
}
void View::layout_if_needed() {
  layer_->layoutIfNeeded();
}

void View::layout_sublayers_of_layer(CALayer layer) {
  if (layer != layer_.get()) return;
  const auto kept = objc::Ref<UIView>::retain(self);
  controller_.viewWillLayoutSubviews();
  self.layoutSubviews();
  controller_.viewDidLayoutSubviews();
}

void View::size_changed(CGSize old_size) {
  if (layer_->bounds().size == old_size) return;
  if (autoresizes_subviews_) resize_subviews(old_size);
  self.setNeedsLayout();
}

void View::resize_subviews(CGSize old_size) {
  const CGSize new_size = layer_->bounds().size;
  const auto children = subviews_;
  for (const auto& child : children) {
    const UIViewAutoresizing mask = child->autoresizingMask();
    if (mask == UIViewAutoresizingNone) continue;
    child->setFrame(autoresized_frame(child->frame(), old_size, new_size, mask));
  }
}

void View::set_needs_display() {
  if (draws_) layer_->setNeedsDisplay();
}
void View::set_needs_display_in_rect(CGRect) {
  if (draws_) layer_->setNeedsDisplay();
}

void View::draw_layer(CALayer layer, CGContextRef context) {
  if (layer != layer_.get()) return;
  UIGraphicsPushContext(context);
  self.drawRect(self.bounds());
  UIGraphicsPopContext();
}

CGSize View::size_that_fits(CGSize) {
  return self.bounds().size;
}

void View::size_to_fit() {
  const CGRect bounds = self.bounds();
  const CGRect frame = self.frame();
  const CGSize size = self.sizeThatFits(bounds.size);
  // Grows from its top left corner, which stays in place.
  if (size != bounds.size) self.setFrame({frame.origin, size});
}

CGSize View::intrinsic_content_size() {
  return {kNoIntrinsicMetric, kNoIntrinsicMetric};
}

}  // namespace host::uikit
