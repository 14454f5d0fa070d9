#include <cmath>
#include <utility>

#include "host/quartzcore/backing_stores.h"
#include "host/quartzcore/drawing/context.h"
#include "host/quartzcore/layer.h"
#include "host/quartzcore/layer_service.h"

namespace host::quartzcore {
namespace {

// Backing stores beyond this many pixels a side are drawn coarser, not refused.
constexpr double kLargestBackingSide = 8192;

bool answers(objc::Object delegate, objc::Sel selector) {
  return delegate && objc::cast<NSObject>(delegate).respondsToSelector(selector);
}

}  // namespace

void Layer::mark(bool& flag) {
  flag = true;
  if (in_dirty_list_) return;
  in_dirty_list_ = true;
  mark_layer_dirty(self);
}

void Layer::set_needs_display() {
  mark(needs_display_);
}

void Layer::set_needs_layout() {
  mark(needs_layout_);
  announce_layout();
}

// Whoever lays out a tree then walks only where there is something to do.
void Layer::announce_layout() {
  for (CALayer above = superlayer_; above;) {
    Layer& layer = objc::state_of<Layer>(above);
    if (std::exchange(layer.layout_waits_below_, true)) return;
    above = layer.superlayer_;
  }
}

void Layer::display_if_needed() {
  if (!needs_display_) return;
  needs_display_ = false;
  self.display();
}

// A layer that nobody draws must not cost a backing store.
bool Layer::is_custom_drawn() const {
  const objc::Sel selector = "drawInContext:"_sel;
  const objc::Method own = class_getInstanceMethod(objc::class_of(self.id()), selector);
  const objc::Method plain = class_getInstanceMethod(CALayer::cls(), selector);
  if (method_getImplementation(own) != method_getImplementation(plain)) return true;
  return answers(delegate_, "drawLayer:inContext:"_sel);
}

void Layer::display() {
  if (answers(delegate_, "displayLayer:"_sel)) {
    objc::send<>(delegate_, "displayLayer:"_sel, self);
    return;
  }
  const CGSize size = properties_.bounds.size;
  if (!is_custom_drawn()) return;
  if (!(size.width > 0) || !(size.height > 0)) {
    self.setContents(objc::Object());
    return;
  }
  const double longest = std::max(size.width, size.height) * contents_scale_;
  const double scale = contents_scale_ * std::min(1.0, kLargestBackingSide / longest);
  const Opacity opacity = opaque_ ? Opacity::Opaque : Opacity::Translucent;
  CGContextRef context = make_bitmap_context(size, scale, opacity);
  cairo_translate(context->cairo(), -properties_.bounds.origin.x, -properties_.bounds.origin.y);
  self.drawInContext(context);
  // Whoever kept the context may draw on: only then the pixels must be copied.
  CGImageRef image = context->references == 1 ? make_image(context->surface, opacity)
                                              : CGBitmapContextCreateImage(context);
  CGContextRelease(context);
  self.setContents(image);
  note_backing_store(self, CGImageGetBytesPerRow(image) * CGImageGetHeight(image));
  has_backing_store_ = true;
  CGImageRelease(image);
}

void Layer::forget_own_backing_store() {
  if (std::exchange(has_backing_store_, false)) forget_backing_store(self);
}

// Nobody sees it, so the screen has not changed.
void Layer::drop_backing_store() {
  forget_own_backing_store();
  contents_.reset();
  image_ = nullptr;
  needs_display_ = true;
  if (gravity_ != Gravity::Resize) forget_reach();
}

void Layer::draw_in_context(CGContextRef context) {
  if (answers(delegate_, "drawLayer:inContext:"_sel))
    objc::send<>(delegate_, "drawLayer:inContext:"_sel, self, context);
}

void Layer::layout_sublayers() {
  if (answers(delegate_, "layoutSublayersOfLayer:"_sel))
    objc::send<>(delegate_, "layoutSublayersOfLayer:"_sel, self);
}

void Layer::layout_if_needed() {
  Layer* top = this;
  for (Layer* layer = this; layer->superlayer_;) {
    layer = &objc::state_of<Layer>(layer->superlayer_);
    if (layer->needs_layout_) top = layer;
  }
  const auto kept = objc::Ref<CALayer>::retain(top->self);
  top->lay_out_marked_tree();
}

void Layer::lay_out_marked_tree() {
  if (needs_layout_) {
    needs_layout_ = false;
    self.layoutSublayers();
  }
  if (!std::exchange(layout_waits_below_, false)) return;
  // Layout may add and remove layers: walk what there is when it is done.
  std::vector<objc::Ref<CALayer>> waiting;
  for (const auto& child : children_) {
    const Layer& layer = objc::state_of<Layer>(child.get());
    if (layer.needs_layout_ || layer.layout_waits_below_) waiting.push_back(child);
  }
  for (const auto& child : waiting)
    objc::state_of<Layer>(child.get()).lay_out_marked_tree();
}

}  // namespace host::quartzcore
