#pragma once

#include <span>

#include "host/quartzcore/drawing/color.h"
#include "platform/UIKit/_UIBackdropViewSettings.h"

namespace host::uikit {

enum class BackdropTint {
  Fixed,
  /// The darker the background, the stronger the tint, so dark text stays readable.
  FollowsBrightness,
};

/// One look of a backdrop. Blur, saturation, grey and tint are applied in this order.
struct BackdropLook {
  const char* class_name;
  _UIBackdropViewStyle style;
  double blur_radius;  // points
  double saturation;   // 1 keeps the colours as they are
  double gray_level;
  double gray_alpha;
  quartzcore::Rgba tint;
  BackdropTint tinting = BackdropTint::Fixed;
};

std::span<const BackdropLook> backdrop_looks();

/// Returns the look with that number; the adaptive light one when no such look exists.
const BackdropLook& look_of_style(_UIBackdropViewStyle style);
/// Returns the look of that settings class; null when the class has none.
const BackdropLook* look_of_class(objc::Class cls);

/// Returns the alpha of the adaptive tint, 0 to 1, over a background of this brightness.
double adaptive_tint_alpha(double luminance);

}  // namespace host::uikit
