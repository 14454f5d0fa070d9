#include "host/quartzcore/kinds/gradient_layer.h"

#include <algorithm>

#include "host/quartzcore/animations/value_objects.h"
#include "host/quartzcore/layers/layer_actions.h"
#include "host/quartzcore/layers/layer_changes.h"
#include "host/quartzcore/values/signature.h"

namespace host::quartzcore {
namespace {

constexpr PropertyAccess<GradientProperties> kGradientProperties[] = {
    access_to<&GradientProperties::start>("startPoint"),
    access_to<&GradientProperties::end>("endPoint"),
    access_to<&GradientProperties::locations>("locations"),
};

const PropertyAccess<GradientProperties>* gradient_property(std::string_view key_path) {
  return find_access(kGradientProperties, key_path);
}

}  // namespace

GradientLayer::GradientLayer(CAGradientLayer owner) : Implementation(owner) {
  layer_of(owner).set_drawing(this);
}
GradientLayer::~GradientLayer() {
  layer_of(self).set_drawing(nullptr);
}

template <class T>
void GradientLayer::change(NSString key, T GradientProperties::*member, const T& value) {
  if (model_.*member == value) return;
  const auto action = action_before_change(self, key);
  model_.*member = value;
  note_layer_change();
  run_action(action, self, key);
}

void GradientLayer::set_colors(NSArray colors) {
  colors_ = objc::Ref<NSArray>::adopt(colors.copy());
  stops_.clear();
  if (colors) {
    for (objc::Object color : colors.of())
      stops_.push_back(is_color(color) ? objc::state_of<Color>(color).rgba : Rgba{});
  }
  note_layer_change();
}

void GradientLayer::set_locations(NSArray locations) {
  locations_ = objc::Ref<NSArray>::adopt(locations.copy());
  const auto read = value_from_object(locations);
  const auto* numbers = read ? std::get_if<std::vector<double>>(&*read) : nullptr;
  change("locations"_ns, &GradientProperties::locations,
         numbers ? *numbers : std::vector<double>());
}

void GradientLayer::set_start_point(CGPoint point) {
  change("startPoint"_ns, &GradientProperties::start, point);
}
void GradientLayer::set_end_point(CGPoint point) {
  change("endPoint"_ns, &GradientProperties::end, point);
}

void GradientLayer::present(const std::vector<RunningAnimation>& animations, double now) {
  presented_ = model_;
  apply_animations(animations, now, gradient_property, presented_);
}

std::optional<Value> GradientLayer::model_value(std::string_view key_path) const {
  const auto* found = gradient_property(key_path);
  return found ? std::optional(found->read(model_)) : std::nullopt;
}

std::uint64_t GradientLayer::signature() const {
  std::uint64_t result = mix_signature(mix_signature(2, presented_.start), presented_.end);
  for (double location : presented_.locations)
    result = mix_signature(result, location);
  for (const Rgba& stop : stops_)
    result = mix_signature(result, stop);
  return result;
}

CGRect GradientLayer::extent(const LayerProperties& properties) const {
  return stops_.empty() ? CGRect() : properties.bounds;
}

double GradientLayer::location(std::size_t index) const {
  if (index < presented_.locations.size()) return presented_.locations[index];
  return stops_.size() < 2 ? 0
                           : static_cast<double>(index) / static_cast<double>(stops_.size() - 1);
}

void GradientLayer::paint(cairo_t* drawing, const LayerProperties& p) const {
  if (stops_.empty()) return;
  const auto at = [&](CGPoint unit) {
    return CGPoint{p.bounds.min_x() + unit.x * p.bounds.size.width,
                   p.bounds.min_y() + unit.y * p.bounds.size.height};
  };
  const CGPoint start = at(presented_.start);
  const CGPoint end = at(presented_.end);
  cairo_pattern_t* gradient = cairo_pattern_create_linear(start.x, start.y, end.x, end.y);
  for (std::size_t i = 0; i < stops_.size(); ++i) {
    const Rgba& stop = stops_[i];
    cairo_pattern_add_color_stop_rgba(gradient, location(i), stop.red, stop.green, stop.blue,
                                      stop.alpha);
  }
  cairo_new_path(drawing);
  cairo_rectangle(drawing, p.bounds.min_x(), p.bounds.min_y(), p.bounds.size.width,
                  p.bounds.size.height);
  cairo_set_source(drawing, gradient);
  cairo_fill(drawing);
  cairo_pattern_destroy(gradient);
}

void export_gradient_layer() {
  objc::ClassBuilder("CAGradientLayer", "CALayer")
      .state<GradientLayer>()
      .method<&GradientLayer::colors>("colors")
      .method<&GradientLayer::set_colors>("setColors:")
      .method<&GradientLayer::locations>("locations")
      .method<&GradientLayer::set_locations>("setLocations:")
      .method<&GradientLayer::start_point>("startPoint")
      .method<&GradientLayer::set_start_point>("setStartPoint:")
      .method<&GradientLayer::end_point>("endPoint")
      .method<&GradientLayer::set_end_point>("setEndPoint:")
      .finish();
}

}  // namespace host::quartzcore
