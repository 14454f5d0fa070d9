#include <cmath>
#include <utility>

#include "host/quartzcore/animations/delegate.h"
#include "host/quartzcore/layers/drawn_contents.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_messages.h"
#include "host/quartzcore/layers/marked_layers.h"
#include "host/quartzcore/layers/screen_density.h"

namespace host::quartzcore {
namespace {

void mark(CALayer self) {
  if (!std::exchange(layer_of(self).marks.is_listed, true)) add_marked_layer(self);
}

BOOL needs_display(CALayer self) {
  return layer_of(self).marks.needs_display;
}

// A mark that outlived a turn belongs to a layer out of sight: the frame that shows it displays it.
void set_needs_display(CALayer self) {
  if (!std::exchange(layer_of(self).marks.needs_display, true)) mark(self);
}

BOOL needs_display_on_bounds_change(CALayer self) {
  return layer_of(self).needs_display_on_bounds_change;
}

void set_needs_display_on_bounds_change(CALayer self, BOOL needs) {
  layer_of(self).needs_display_on_bounds_change = needs != NO;
}

BOOL needs_layout(CALayer self) {
  return layer_of(self).marks.needs_layout;
}

void set_needs_layout(CALayer self) {
  layer_of(self).marks.needs_layout = true;
  mark(self);
  layer_of(self).announce_layout();
}

void display_if_needed(CALayer self) {
  if (!std::exchange(layer_of(self).marks.needs_display, false)) return;
  self.display();
}

// A layer without any drawing code must not cost a backing store.
bool is_custom_drawn(CALayer self) {
  const objc::Sel selector = "drawInContext:"_sel;
  const objc::Method own = class_getInstanceMethod(objc::class_of(self.id()), selector);
  const objc::Method plain = class_getInstanceMethod(CALayer::cls(), selector);
  if (method_getImplementation(own) != method_getImplementation(plain)) return true;
  return answers(layer_of(self).delegate, "drawLayer:inContext:"_sel);
}

void display(CALayer self) {
  if (answers(layer_of(self).delegate, "displayLayer:"_sel)) {
    objc::send<>(layer_of(self).delegate, "displayLayer:"_sel, self);
    return;
  }
  if (!is_custom_drawn(self)) return;
  const CGSize size = layer_of(self).model.properties.bounds.size;
  if (!(size.width > 0) || !(size.height > 0)) {
    self.setContents(objc::Object());
    return;
  }
  CGImageRef image = draw_contents(self);
  self.setContents(image);
  layer_of(self).model.contents.density = screen_density();
  layer_of(self).backing_store.note(CGImageGetBytesPerRow(image) * CGImageGetHeight(image));
  CGImageRelease(image);
}

void draw_in_context(CALayer self, CGContextRef context) {
  if (answers(layer_of(self).delegate, "drawLayer:inContext:"_sel))
    objc::send<>(layer_of(self).delegate, "drawLayer:inContext:"_sel, self, context);
}

void layout_sublayers(CALayer self) {
  if (answers(layer_of(self).delegate, "layoutSublayersOfLayer:"_sel))
    objc::send<>(layer_of(self).delegate, "layoutSublayersOfLayer:"_sel, self);
}

void lay_out_marked_tree(Layer& layer) {
  if (std::exchange(layer.marks.needs_layout, false)) layer.handle().layoutSublayers();
  if (!std::exchange(layer.marks.layout_waits_below, false)) return;
  // Layout may add and remove layers: visit those that exist when it is done.
  std::vector<objc::Ref<CALayer>> waiting;
  for (const auto& child : layer.tree.sublayers) {
    if (layer_of(child.get()).marks.awaits_layout()) waiting.push_back(child);
  }
  for (const auto& child : waiting)
    lay_out_marked_tree(layer_of(child.get()));
}

void layout_if_needed(CALayer self) {
  Layer* top = &layer_of(self);
  for (Layer* above = top->superlayer(); above; above = above->superlayer()) {
    if (above->marks.needs_layout) top = above;
  }
  const auto kept = objc::Ref<CALayer>::retain(top->handle());
  lay_out_marked_tree(*top);
}

}  // namespace

void add_display_messages(objc::ClassBuilder& builder) {
  builder.method<&needs_display>("needsDisplay")
      .method<&set_needs_display>("setNeedsDisplay")
      .method<&display_if_needed>("displayIfNeeded")
      .method<&display>("display")
      .method<&draw_in_context>("drawInContext:")
      .method<&needs_display_on_bounds_change>("needsDisplayOnBoundsChange")
      .method<&set_needs_display_on_bounds_change>("setNeedsDisplayOnBoundsChange:")
      .method<&needs_layout>("needsLayout")
      .method<&set_needs_layout>("setNeedsLayout")
      .method<&layout_if_needed>("layoutIfNeeded")
      .method<&layout_sublayers>("layoutSublayers");
}

}  // namespace host::quartzcore
