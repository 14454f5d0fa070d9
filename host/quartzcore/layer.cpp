#include "host/quartzcore/layer.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/quartzcore/animations/animation_delegate.h"
#include "host/quartzcore/layer_service.h"

namespace host::quartzcore {
namespace {

std::uint64_t next_serial() {
  static std::uint64_t last = 0;
  return ++last;
}

constexpr std::pair<std::string_view, Gravity> kGravities[] = {
    {"resize", Gravity::Resize},
    {"resizeAspect", Gravity::ResizeAspect},
    {"resizeAspectFill", Gravity::ResizeAspectFill},
    {"center", Gravity::Center},
    {"top", Gravity::Top},
    {"bottom", Gravity::Bottom},
    {"left", Gravity::Left},
    {"right", Gravity::Right},
    {"topLeft", Gravity::TopLeft},
    {"topRight", Gravity::TopRight},
    {"bottomLeft", Gravity::BottomLeft},
    {"bottomRight", Gravity::BottomRight},
};

CGColorRef color_in(const objc::Ref<CGColorObject>& color) {
  return reinterpret_cast<CGColorRef>(color.get().id());
}

CGColorObject object_in(CGColorRef color) {
  return objc::cast<CGColorObject>(object_of(color));
}

}  // namespace

Layer::Layer(CALayer owner) : Implementation(owner), serial_(next_serial()) {
  border_color_ = objc::Ref<CGColorObject>::adopt(object_in(make_color(properties_.border_color)));
}

Layer::~Layer() {
  if (in_dirty_list_) forget_dirty_layer(self);
  if (in_animated_list_) forget_animated_layer(self);
  forget_own_backing_store();
  for (auto& animation : animations_)
    stop_animation(animation, NO, true);
  for (const auto& child : children_)
    objc::state_of<Layer>(child.get()).superlayer_ = nil;
  if (mask_) objc::state_of<Layer>(mask_.get()).superlayer_ = nil;
}

template <auto Member, class T>
void Layer::change(NSString key, const T& value) {
  if (properties_.*Member == value) return;
  const auto action = action_before_change(key);
  properties_.*Member = value;
  constexpr bool is_place = !std::is_same_v<T, double> && !std::is_same_v<T, Rgba>;
  if constexpr (is_place) forget_reach();
  note_layer_change();
  run_action(action, key);
}

CGRect Layer::frame() const {
  const LayerProperties& p = properties_;
  const CGRect box = CGRectApplyAffineTransform(p.bounds, p.to_super());
  // Without a transform the size is kept to the last bit: whoever moves a layer by its frame must
  // not change its bounds.
  return CATransform3DIsIdentity(p.transform) ? CGRect{box.origin, p.bounds.size} : box;
}

void Layer::set_frame(CGRect frame) {
  const LayerProperties& p = properties_;
  CGAffineTransform linear = CATransform3DGetAffineTransform(p.transform);
  const CGPoint translation{linear.tx, linear.ty};
  linear.tx = linear.ty = 0;
  CGSize size = frame.size;
  if (!CGAffineTransformIsIdentity(linear)) {
    // The size whose transformed box fits the frame, exactly so without turning.
    const CGRect box = CGRectApplyAffineTransform({0, 0, frame.size.width, frame.size.height},
                                                  CGAffineTransformInvert(linear));
    size = box.size;
  }
  const CGRect placed = CGRectApplyAffineTransform(
      {-p.anchor.x * size.width, -p.anchor.y * size.height, size.width, size.height}, linear);
  self.setBounds({p.bounds.origin, size});
  self.setPosition({frame.origin.x - placed.origin.x - translation.x,
                    frame.origin.y - placed.origin.y - translation.y});
}

void Layer::set_bounds(CGRect bounds) {
  if (bounds == properties_.bounds) return;
  const bool resized = !(bounds.size == properties_.bounds.size);
  change<&LayerProperties::bounds>("bounds"_ns, bounds);
  self.setNeedsLayout();
  if (resized && needs_display_on_bounds_change_) self.setNeedsDisplay();
}

void Layer::set_position(CGPoint position) {
  change<&LayerProperties::position>("position"_ns, position);
}
void Layer::set_anchor_point(CGPoint anchor) {
  change<&LayerProperties::anchor>("anchorPoint"_ns, anchor);
}
void Layer::set_z_position(CGFloat z) {
  // The order of the sublayers is the index's, too.
  forget_reach();
  change<&LayerProperties::z_position>("zPosition"_ns, z);
}
void Layer::set_transform(CATransform3D transform) {
  change<&LayerProperties::transform>("transform"_ns, transform);
}
CGAffineTransform Layer::affine_transform() const {
  return CATransform3DGetAffineTransform(properties_.transform);
}
void Layer::set_affine_transform(CGAffineTransform transform) {
  self.setTransform(CATransform3DMakeAffineTransform(transform));
}
void Layer::set_opacity(float opacity) {
  const double clamped = std::isnan(opacity) ? 0 : std::clamp<double>(opacity, 0, 1);
  change<&LayerProperties::opacity>("opacity"_ns, clamped);
}
void Layer::set_corner_radius(CGFloat radius) {
  change<&LayerProperties::corner_radius>("cornerRadius"_ns, radius);
}
void Layer::set_border_width(CGFloat width) {
  change<&LayerProperties::border_width>("borderWidth"_ns, width);
}

CGColorRef Layer::border_color() const {
  return color_in(border_color_);
}
void Layer::set_border_color(CGColorRef color) {
  border_color_.reset(object_in(color));
  change<&LayerProperties::border_color>("borderColor"_ns, rgba_of(color));
}
CGColorRef Layer::background_color() const {
  return color_in(background_color_);
}
const Pattern* Layer::background_pattern() const {
  if (!background_color_) return nullptr;
  const Pattern& pattern = objc::state_of<Color>(background_color_.get()).pattern;
  return pattern ? &pattern : nullptr;
}
void Layer::set_background_color(CGColorRef color) {
  const bool has_pattern = background_pattern() || pattern_of(color);
  background_color_.reset(object_in(color));
  // Patterns of the same mean are not the same.
  if (has_pattern) note_layer_change();
  change<&LayerProperties::background_color>("backgroundColor"_ns, rgba_of(color));
}

void Layer::set_hidden(BOOL hidden) {
  if (hidden_ == (hidden != NO)) return;
  hidden_ = hidden != NO;
  note_layer_change();
}
void Layer::set_opaque(BOOL opaque) {
  opaque_ = opaque != NO;
  note_layer_change();
}
void Layer::set_masks_to_bounds(BOOL masks) {
  if (masks_to_bounds_ == (masks != NO)) return;
  masks_to_bounds_ = masks != NO;
  forget_reach();
  note_layer_change();
}
void Layer::set_should_rasterize(BOOL rasterize) {
  should_rasterize_ = rasterize != NO;
  note_layer_change();
}

void Layer::set_contents(objc::Object contents) {
  if (contents == contents_.get()) return;
  forget_own_backing_store();
  contents_.reset(contents);
  image_ = image_of(contents);
  needs_display_ = false;
  if (gravity_ != Gravity::Resize) forget_reach();
  note_layer_change();
}

NSString Layer::contents_gravity() const {
  return NSString::stringWithUTF8String(kGravities[static_cast<int>(gravity_)].first.data());
}
void Layer::set_contents_gravity(NSString gravity) {
  const std::string_view wanted = gravity ? gravity.UTF8String() : "";
  const auto* found = std::find_if(std::begin(kGravities), std::end(kGravities),
                                   [&](const auto& named) { return named.first == wanted; });
  if (found == std::end(kGravities)) return;
  gravity_ = found->second;
  forget_reach();
  note_layer_change();
}
void Layer::set_contents_scale(CGFloat scale) {
  if (scale <= 0) return;
  contents_scale_ = scale;
  if (gravity_ != Gravity::Resize) forget_reach();
  note_layer_change();
}

void Layer::set_mask(CALayer mask) {
  if (mask == mask_.get()) return;
  if (mask_) objc::state_of<Layer>(mask_.get()).superlayer_ = nil;
  mask.removeFromSuperlayer();
  mask_.reset(mask);
  if (mask) objc::state_of<Layer>(mask).superlayer_ = self;
  note_layer_change();
}

}  // namespace host::quartzcore
