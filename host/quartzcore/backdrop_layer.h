#pragma once

#include <vector>

#include "host/quartzcore/layer.h"
#include "platform/QuartzCore/CABackdropLayer.h"

namespace host::quartzcore {

/// How a backdrop changes what it has blurred.
struct BackdropLook {
  double blur_radius = 20;
  double saturation = 1;
  double brightness = 0;
  double gray_alpha = 0;
  double gray_level = 0;
  Rgba tint;
  Rgba lighten;

  std::uint64_t signature() const;
};

/// CABackdropLayer: the compositor gives it what is painted behind.
class BackdropLayer : public objc::Implementation<BackdropLayer, CABackdropLayer> {
 public:
  explicit BackdropLayer(CABackdropLayer owner);
  ~BackdropLayer();

  const Layer& layer() const { return objc::state_of<Layer>(self); }
  const BackdropLook& look() const { return look_; }
  void note_luminance(double luminance) { luminance_ = luminance; }

  template <auto Member>
  CGFloat number() const {
    return look_.*Member;
  }
  template <auto Member>
  void set_number(CGFloat value) {
    look_.*Member = value;
    note_change();
  }
  CGColorRef tint_color() const;
  void set_tint_color(CGColorRef color);
  CGColorRef lighten_tint() const;
  void set_lighten_tint(CGColorRef color);
  CGFloat luminance() const { return luminance_; }

 private:
  void note_change();

  BackdropLook look_;
  objc::Ref<CGColorObject> tint_color_;
  objc::Ref<CGColorObject> lighten_tint_;
  double luminance_ = 0.5;
};

/// All that there are in this process.
const std::vector<const BackdropLayer*>& all_backdrops();

void export_backdrop_layer();

}  // namespace host::quartzcore
