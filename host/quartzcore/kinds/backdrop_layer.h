#pragma once

#include <vector>

#include "host/quartzcore/layers/layer.h"
#include "platform/QuartzCore/CABackdropLayer.h"

namespace host::quartzcore {

/// How a backdrop alters the picture behind it.
struct BackdropLook {
  /// In points; 0 does not blur.
  double blur_radius = 20;
  /// 1 keeps the colours, 0 is grey, above 1 is more colourful.
  double saturation = 1;
  /// A grey over the blur, below the tint.
  double gray_alpha = 0;
  double gray_level = 0;
  Rgba tint{};

  std::uint64_t signature() const;
};

/// CABackdropLayer: shows the picture behind it, which the compositor provides.
class BackdropLayer : public objc::Implementation<BackdropLayer, CABackdropLayer> {
 public:
  explicit BackdropLayer(CABackdropLayer owner);
  ~BackdropLayer();

  const Layer& layer() const { return layer_of(self); }
  const BackdropLook& look() const { return look_; }
  void show(const BackdropLook& look);
  void note_luminance(double luminance) { luminance_ = luminance; }
  /// The mean luminance, 0 to 1, of the last blurred picture, before the tints; 0.5 before the
  /// first frame.
  double luminance() const { return luminance_; }

 private:
  BackdropLook look_;
  double luminance_ = 0.5;
};

/// All backdrop layers of this process.
const std::vector<const BackdropLayer*>& all_backdrops();

void export_backdrop_layer();

}  // namespace host::quartzcore
