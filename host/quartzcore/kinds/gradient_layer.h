#pragma once

#include <vector>

#include "host/quartzcore/layers/layer.h"
#include "platform/QuartzCore/CAGradientLayer.h"

namespace host::quartzcore {

struct GradientProperties {
  CGPoint start{0.5, 0};
  CGPoint end{0.5, 1};
  std::vector<double> locations;
};

/// CAGradientLayer: colours along an axis, filling the whole bounds.
class GradientLayer : public objc::Implementation<GradientLayer, CAGradientLayer>,
                      public LayerDrawing {
 public:
  explicit GradientLayer(CAGradientLayer owner);
  ~GradientLayer() override;

  NSArray colors() const { return colors_.get(); }
  void set_colors(NSArray colors);
  NSArray locations() const { return locations_.get(); }
  void set_locations(NSArray locations);
  CGPoint start_point() const { return model_.start; }
  void set_start_point(CGPoint point);
  CGPoint end_point() const { return model_.end; }
  void set_end_point(CGPoint point);

  void present(const std::vector<RunningAnimation>& animations, double now) override;
  std::optional<Value> model_value(std::string_view key_path) const override;
  std::uint64_t signature() const override;
  CGRect extent(const LayerProperties& properties) const override;
  void paint(cairo_t* drawing, const LayerProperties& properties) const override;

 private:
  template <class T>
  void change(NSString key, T GradientProperties::*member, const T& value);
  double location(std::size_t index) const;

  GradientProperties model_;
  GradientProperties presented_;
  objc::Ref<NSArray> colors_;
  objc::Ref<NSArray> locations_;
  std::vector<Rgba> stops_;
};

void export_gradient_layer();

}  // namespace host::quartzcore
