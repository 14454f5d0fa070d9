#include "host/quartzcore/kinds/shape_layer.h"

#include <algorithm>

#include "host/quartzcore/drawing/path_part.h"
#include "host/quartzcore/layers/layer_actions.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

constexpr PropertyAccess<ShapeProperties> kShapeProperties[] = {
    access_to<&ShapeProperties::fill>("fillColor"),
    access_to<&ShapeProperties::stroke>("strokeColor"),
    access_to<&ShapeProperties::line_width>("lineWidth"),
    access_to<&ShapeProperties::stroke_start>("strokeStart"),
    access_to<&ShapeProperties::stroke_end>("strokeEnd"),
};

const PropertyAccess<ShapeProperties>* shape_property(std::string_view key_path) {
  return find_access(kShapeProperties, key_path);
}

constexpr const char* kCaps[] = {"butt", "round", "square"};
constexpr const char* kJoins[] = {"miter", "round", "bevel"};
constexpr const char* kRules[] = {"non-zero", "even-odd"};

template <std::size_t Size>
int index_of(NSString wanted, const char* const (&names)[Size], int otherwise) {
  const std::string_view text = wanted ? wanted.UTF8String() : "";
  const auto* found = std::find(std::begin(names), std::end(names), text);
  return found == std::end(names) ? otherwise : static_cast<int>(found - names);
}

}  // namespace

ShapeLayer::ShapeLayer(CAShapeLayer owner) : Implementation(owner) {
  layer_of(owner).set_drawing(this);
}

ShapeLayer::~ShapeLayer() {
  layer_of(self).set_drawing(nullptr);
}

template <class T>
void ShapeLayer::change(NSString key, T ShapeProperties::*member, const T& value) {
  if (model_.*member == value) return;
  const auto action = action_before_change(self, key);
  model_.*member = value;
  note_shape_change();
  run_action(action, self, key);
}

void ShapeLayer::note_shape_change() {
  ++version_;
  note_layer_change();
}

CGPathRef ShapeLayer::path() const {
  return reinterpret_cast<CGPathRef>(path_.get().id());
}
void ShapeLayer::set_path(CGPathRef path) {
  // A copy: later changes to the caller's path must have no effect here.
  path_ =
      objc::Ref<CGPathObject>::adopt(objc::cast<CGPathObject>(object_of(CGPathCreateCopy(path))));
  note_shape_change();
}
CGColorRef ShapeLayer::fill_color() const {
  return fill_color_.get();
}
void ShapeLayer::set_fill_color(CGColorRef color) {
  fill_color_.reset(color);
  change("fillColor"_ns, &ShapeProperties::fill, rgba_of(color));
}
CGColorRef ShapeLayer::stroke_color() const {
  return stroke_color_.get();
}
void ShapeLayer::set_stroke_color(CGColorRef color) {
  stroke_color_.reset(color);
  change("strokeColor"_ns, &ShapeProperties::stroke, rgba_of(color));
}
void ShapeLayer::set_line_width(CGFloat width) {
  change("lineWidth"_ns, &ShapeProperties::line_width, width);
}
void ShapeLayer::set_stroke_start(CGFloat start) {
  change("strokeStart"_ns, &ShapeProperties::stroke_start, start);
}
void ShapeLayer::set_stroke_end(CGFloat end) {
  change("strokeEnd"_ns, &ShapeProperties::stroke_end, end);
}
NSString ShapeLayer::line_cap() const {
  return NSString::stringWithUTF8String(kCaps[cap_]);
}
void ShapeLayer::set_line_cap(NSString cap) {
  cap_ = static_cast<cairo_line_cap_t>(index_of(cap, kCaps, cap_));
  note_shape_change();
}
NSString ShapeLayer::line_join() const {
  return NSString::stringWithUTF8String(kJoins[join_]);
}
void ShapeLayer::set_line_join(NSString join) {
  join_ = static_cast<cairo_line_join_t>(index_of(join, kJoins, join_));
  note_shape_change();
}
NSString ShapeLayer::fill_rule() const {
  return NSString::stringWithUTF8String(kRules[rule_]);
}
void ShapeLayer::set_fill_rule(NSString rule) {
  rule_ = static_cast<cairo_fill_rule_t>(index_of(rule, kRules, rule_));
  note_shape_change();
}

void ShapeLayer::present(const std::vector<RunningAnimation>& animations, double now) {
  presented_ = model_;
  apply_animations(animations, now, shape_property, presented_);
}

std::optional<Value> ShapeLayer::model_value(std::string_view key_path) const {
  const auto* found = shape_property(key_path);
  return found ? std::optional(found->read(model_)) : std::nullopt;
}

std::uint64_t ShapeLayer::signature() const {
  std::uint64_t result = mix_signature(version_, presented_.fill);
  result = mix_signature(result, presented_.stroke);
  result = mix_signature(result, presented_.line_width);
  return mix_signature(result, CGPoint{presented_.stroke_start, presented_.stroke_end});
}

CGRect ShapeLayer::extent(const LayerProperties&) const {
  if (!path_) return {};
  const CGRect box = objc::state_of<Path>(path_.get()).bounding_box();
  if (presented_.stroke.alpha <= 0) return box;
  // Half the line width, plus the farthest that a mitred corner or a square cap may reach.
  const double reach = presented_.line_width * (join_ == CAIRO_LINE_JOIN_MITER ? 5 : 1);
  return CGRectInset(box, -reach, -reach);
}

void ShapeLayer::paint(cairo_t* drawing, const LayerProperties&) const {
  if (!path_) return;
  cairo_new_path(drawing);
  if (presented_.fill.alpha > 0) {
    objc::state_of<Path>(path_.get()).add_to(drawing);
    cairo_set_fill_rule(drawing, rule_);
    set_source(drawing, presented_.fill);
    cairo_fill(drawing);
  }
  if (presented_.stroke.alpha > 0 && presented_.line_width > 0) {
    add_part(objc::state_of<Path>(path_.get()), presented_.stroke_start, presented_.stroke_end,
             drawing);
    cairo_set_line_cap(drawing, cap_);
    cairo_set_line_join(drawing, join_);
    cairo_set_line_width(drawing, presented_.line_width);
    set_source(drawing, presented_.stroke);
    cairo_stroke(drawing);
  }
}

void export_shape_layer() {
  objc::ClassBuilder("CAShapeLayer", "CALayer")
      .state<ShapeLayer>()
      .method<&ShapeLayer::path>("path")
      .method<&ShapeLayer::set_path>("setPath:")
      .method<&ShapeLayer::fill_color>("fillColor")
      .method<&ShapeLayer::set_fill_color>("setFillColor:")
      .method<&ShapeLayer::stroke_color>("strokeColor")
      .method<&ShapeLayer::set_stroke_color>("setStrokeColor:")
      .method<&ShapeLayer::line_width>("lineWidth")
      .method<&ShapeLayer::set_line_width>("setLineWidth:")
      .method<&ShapeLayer::stroke_start>("strokeStart")
      .method<&ShapeLayer::set_stroke_start>("setStrokeStart:")
      .method<&ShapeLayer::stroke_end>("strokeEnd")
      .method<&ShapeLayer::set_stroke_end>("setStrokeEnd:")
      .method<&ShapeLayer::line_cap>("lineCap")
      .method<&ShapeLayer::set_line_cap>("setLineCap:")
      .method<&ShapeLayer::line_join>("lineJoin")
      .method<&ShapeLayer::set_line_join>("setLineJoin:")
      .method<&ShapeLayer::fill_rule>("fillRule")
      .method<&ShapeLayer::set_fill_rule>("setFillRule:")
      .finish();
}

}  // namespace host::quartzcore
