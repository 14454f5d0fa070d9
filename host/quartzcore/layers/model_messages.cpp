#include <algorithm>
#include <cmath>
#include <type_traits>

#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/layer_actions.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/layers/layer_messages.h"

namespace host::quartzcore {
namespace {

using P = LayerProperties;

LayerModel& model(CALayer self) {
  return layer_of(self).model;
}
const P& properties(CALayer self) {
  return model(self).properties;
}

template <auto Member, class T>
void change(CALayer self, NSString key, const T& value) {
  if (properties(self).*Member == value) return;
  const auto action = action_before_change(self, key);
  model(self).properties.*Member = value;
  constexpr bool is_place = !std::is_same_v<T, double> && !std::is_same_v<T, Rgba>;
  if constexpr (is_place) layer_of(self).reach.forget();
  note_layer_change();
  run_action(action, self, key);
}

CGRect frame(CALayer self) {
  return properties(self).frame();
}
void set_frame(CALayer self, CGRect frame) {
  const P placed = properties(self).placed_in(frame);
  self.setBounds(placed.bounds);
  self.setPosition(placed.position);
}
CGRect bounds(CALayer self) {
  return properties(self).bounds;
}
void set_bounds(CALayer self, CGRect bounds) {
  if (bounds == properties(self).bounds) return;
  const bool resized = !(bounds.size == properties(self).bounds.size);
  change<&P::bounds>(self, "bounds"_ns, bounds);
  self.setNeedsLayout();
  if (resized && layer_of(self).needs_display_on_bounds_change) self.setNeedsDisplay();
}
CGPoint position(CALayer self) {
  return properties(self).position;
}
void set_position(CALayer self, CGPoint position) {
  change<&P::position>(self, "position"_ns, position);
}
CGPoint anchor_point(CALayer self) {
  return properties(self).anchor;
}
void set_anchor_point(CALayer self, CGPoint anchor) {
  change<&P::anchor>(self, "anchorPoint"_ns, anchor);
}
CGFloat z_position(CALayer self) {
  return properties(self).z_position;
}
void set_z_position(CALayer self, CGFloat z) {
  // The superlayer's index holds its sublayers in drawing order, which may change.
  layer_of(self).reach.forget();
  change<&P::z_position>(self, "zPosition"_ns, z);
}
CATransform3D transform(CALayer self) {
  return properties(self).transform;
}
void set_transform(CALayer self, CATransform3D transform) {
  change<&P::transform>(self, "transform"_ns, transform);
}
CGAffineTransform affine_transform(CALayer self) {
  return CATransform3DGetAffineTransform(properties(self).transform);
}
void set_affine_transform(CALayer self, CGAffineTransform transform) {
  self.setTransform(CATransform3DMakeAffineTransform(transform));
}
float opacity(CALayer self) {
  return static_cast<float>(properties(self).opacity);
}
void set_opacity(CALayer self, float opacity) {
  const double clamped = std::isnan(opacity) ? 0 : std::clamp<double>(opacity, 0, 1);
  change<&P::opacity>(self, "opacity"_ns, clamped);
}
CGFloat corner_radius(CALayer self) {
  return properties(self).corner_radius;
}
void set_corner_radius(CALayer self, CGFloat radius) {
  change<&P::corner_radius>(self, "cornerRadius"_ns, radius);
}
CGFloat border_width(CALayer self) {
  return properties(self).border_width;
}
void set_border_width(CALayer self, CGFloat width) {
  change<&P::border_width>(self, "borderWidth"_ns, width);
}

CGColorRef border_color(CALayer self) {
  return model(self).border_color.get();
}
void set_border_color(CALayer self, CGColorRef color) {
  model(self).border_color.reset(color);
  change<&P::border_color>(self, "borderColor"_ns, rgba_of(color));
}
CGColorRef background_color(CALayer self) {
  return model(self).background_color.get();
}
void set_background_color(CALayer self, CGColorRef color) {
  const bool has_pattern = model(self).background_pattern() || pattern_of(color);
  model(self).background_color.reset(color);
  // Different patterns may have the same mean colour.
  if (has_pattern) note_layer_change();
  change<&P::background_color>(self, "backgroundColor"_ns, rgba_of(color));
}

BOOL is_hidden(CALayer self) {
  return model(self).hidden;
}
void set_hidden(CALayer self, BOOL hidden) {
  if (model(self).hidden == (hidden != NO)) return;
  model(self).hidden = hidden != NO;
  note_layer_change();
}
BOOL is_opaque(CALayer self) {
  return model(self).opaque;
}
void set_opaque(CALayer self, BOOL opaque) {
  model(self).opaque = opaque != NO;
  note_layer_change();
}
BOOL masks_to_bounds(CALayer self) {
  return model(self).masks_to_bounds;
}
void set_masks_to_bounds(CALayer self, BOOL masks) {
  if (model(self).masks_to_bounds == (masks != NO)) return;
  model(self).masks_to_bounds = masks != NO;
  layer_of(self).reach.forget();
  note_layer_change();
}
BOOL should_rasterize(CALayer self) {
  return model(self).should_rasterize;
}
void set_should_rasterize(CALayer self, BOOL rasterize) {
  model(self).should_rasterize = rasterize != NO;
  note_layer_change();
}

objc::Object contents(CALayer self) {
  return model(self).contents.object();
}
void set_contents(CALayer self, objc::Object object) {
  Layer& layer = layer_of(self);
  if (object == layer.model.contents.object()) return;
  layer.backing_store.forget();
  layer.model.contents.show(object);
  layer.marks.needs_display = false;
  if (layer.model.contents.has_own_place()) layer.reach.forget();
  note_layer_change();
}
NSString contents_gravity(CALayer self) {
  return name_of(model(self).contents.gravity);
}
void set_contents_gravity(CALayer self, NSString gravity) {
  const auto found = gravity_named(gravity ? gravity.UTF8String() : "");
  if (!found) return;
  model(self).contents.gravity = *found;
  layer_of(self).reach.forget();
  note_layer_change();
}
CGFloat contents_scale(CALayer self) {
  return model(self).contents.scale;
}
void set_contents_scale(CALayer self, CGFloat scale) {
  if (scale <= 0) return;
  model(self).contents.scale = scale;
  if (model(self).contents.has_own_place()) layer_of(self).reach.forget();
  note_layer_change();
}

NSString name(CALayer self) {
  return model(self).name.get();
}
void set_name(CALayer self, NSString name) {
  model(self).name.reset(name);
}
objc::Object delegate(CALayer self) {
  return layer_of(self).delegate;
}
void set_delegate(CALayer self, objc::Object delegate) {
  layer_of(self).delegate = delegate;
}

}  // namespace

void add_model_messages(objc::ClassBuilder& builder) {
  builder.method<&frame>("frame")
      .method<&set_frame>("setFrame:")
      .method<&bounds>("bounds")
      .method<&set_bounds>("setBounds:")
      .method<&position>("position")
      .method<&set_position>("setPosition:")
      .method<&anchor_point>("anchorPoint")
      .method<&set_anchor_point>("setAnchorPoint:")
      .method<&z_position>("zPosition")
      .method<&set_z_position>("setZPosition:")
      .method<&transform>("transform")
      .method<&set_transform>("setTransform:")
      .method<&affine_transform>("affineTransform")
      .method<&set_affine_transform>("setAffineTransform:")
      .method<&opacity>("opacity")
      .method<&set_opacity>("setOpacity:")
      .method<&is_hidden>("isHidden")
      .method<&set_hidden>("setHidden:")
      .method<&is_opaque>("isOpaque")
      .method<&set_opaque>("setOpaque:")
      .method<&masks_to_bounds>("masksToBounds")
      .method<&set_masks_to_bounds>("setMasksToBounds:")
      .method<&should_rasterize>("shouldRasterize")
      .method<&set_should_rasterize>("setShouldRasterize:")
      .method<&corner_radius>("cornerRadius")
      .method<&set_corner_radius>("setCornerRadius:")
      .method<&border_width>("borderWidth")
      .method<&set_border_width>("setBorderWidth:")
      .method<&border_color>("borderColor")
      .method<&set_border_color>("setBorderColor:")
      .method<&background_color>("backgroundColor")
      .method<&set_background_color>("setBackgroundColor:")
      .method<&contents>("contents")
      .method<&set_contents>("setContents:")
      .method<&contents_gravity>("contentsGravity")
      .method<&set_contents_gravity>("setContentsGravity:")
      .method<&contents_scale>("contentsScale")
      .method<&set_contents_scale>("setContentsScale:")
      .method<&name>("name")
      .method<&set_name>("setName:")
      .method<&delegate>("delegate")
      .method<&set_delegate>("setDelegate:");
}

}  // namespace host::quartzcore
