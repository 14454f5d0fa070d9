#pragma once

#include <span>

#include "host/quartzcore/drawing/color.h"
#include "platform/UIKit/_UIBackdropViewSettings.h"

namespace host::uikit {

enum class BackdropTint {
  Fixed,
  /// The tint grows stronger the darker it is behind, so that dark text stays readable.
  FollowsBrightness,
};

/// One look of a backdrop: blur, then saturation, then a grey, then a colour, in this order.
struct BackdropLook {
  const char* class_name;
  _UIBackdropViewStyle style;
  double blur_radius;  // points
  double saturation;   // 1 keeps the colours
  double gray_level;
  double gray_alpha;
  quartzcore::Rgba tint;
  BackdropTint tinting = BackdropTint::Fixed;
};

std::span<const BackdropLook> backdrop_looks();

/// The look of that number, the adaptive light one where there is none.
const BackdropLook& look_of_style(_UIBackdropViewStyle style);
/// The look of that settings class; null for a class without one.
const BackdropLook* look_of_class(objc::Class cls);

/// How strong the adaptive tint is over something of this brightness, 0 to 1.
double adaptive_tint_alpha(double luminance);

}  // namespace host::uikit
