#pragma once

#include "host/quartzcore/drawing/color.h"
#include "host/quartzcore/drawing/path.h"
#include "host/quartzcore/layers/layer.h"
#include "platform/QuartzCore/CAShapeLayer.h"

namespace host::quartzcore {

struct ShapeProperties {
  Rgba fill{0, 0, 0, 1};
  Rgba stroke;
  double line_width = 1;
  double stroke_start = 0;
  double stroke_end = 1;
};

/// CAShapeLayer: fills and strokes a path, which may reach beyond the layer's bounds.
class ShapeLayer : public objc::Implementation<ShapeLayer, CAShapeLayer>, public LayerDrawing {
 public:
  explicit ShapeLayer(CAShapeLayer owner);
  ~ShapeLayer() override;

  CGPathRef path() const;
  void set_path(CGPathRef path);
  CGColorRef fill_color() const;
  void set_fill_color(CGColorRef color);
  CGColorRef stroke_color() const;
  void set_stroke_color(CGColorRef color);
  CGFloat line_width() const { return model_.line_width; }
  void set_line_width(CGFloat width);
  CGFloat stroke_start() const { return model_.stroke_start; }
  void set_stroke_start(CGFloat start);
  CGFloat stroke_end() const { return model_.stroke_end; }
  void set_stroke_end(CGFloat end);
  NSString line_cap() const;
  void set_line_cap(NSString cap);
  NSString line_join() const;
  void set_line_join(NSString join);
  NSString fill_rule() const;
  void set_fill_rule(NSString rule);

  void present(const std::vector<RunningAnimation>& animations, double now) override;
  std::optional<Value> model_value(std::string_view key_path) const override;
  std::uint64_t signature() const override;
  CGRect extent(const LayerProperties& properties) const override;
  void paint(cairo_t* drawing, const LayerProperties& properties) const override;

 private:
  template <class T>
  void change(NSString key, T ShapeProperties::*member, const T& value);
  void note_shape_change();

  ShapeProperties model_;
  ShapeProperties presented_;
  objc::Ref<CGPathObject> path_;
  KeptColor fill_color_{model_.fill};
  KeptColor stroke_color_;
  cairo_line_cap_t cap_ = CAIRO_LINE_CAP_BUTT;
  cairo_line_join_t join_ = CAIRO_LINE_JOIN_MITER;
  cairo_fill_rule_t rule_ = CAIRO_FILL_RULE_WINDING;
  std::uint64_t version_ = 0;
};

void export_shape_layer();

}  // namespace host::quartzcore
