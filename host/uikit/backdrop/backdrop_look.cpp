#include "host/uikit/backdrop/backdrop_look.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace host::uikit {
namespace {

constexpr quartzcore::Rgba white(double level, double alpha) {
  return {level, level, level, alpha};
}

constexpr quartzcore::Rgba kNoTint{0, 0, 0, 0};
constexpr _UIBackdropViewStyle kFallbackStyle = 2060;

// name, style, blur, saturation, grey level and alpha, tint
constexpr std::array kLooks{
    // Milk glass that adapts to the background: thin over bright pictures, thicker over dark ones.
    BackdropLook{"_UIBackdropViewSettingsAdaptiveLight", 2060, 30, 1.8, 1, 0, white(1, 0.38),
                 BackdropTint::FollowsBrightness},
    // Smoked glass: colours glow through, and white text is readable on it.
    BackdropLook{"_UIBackdropViewSettingsDark", 2030, 20, 1.8, 0, 0, white(0.11, 0.73)},
    // Almost paper: only a hint of the colours behind.
    BackdropLook{"_UIBackdropViewSettingsUltraLight", 2010, 20, 1.8, 1, 0, white(0.97, 0.82)},
    // A light veil over a shallow blur: shapes remain recognisable.
    BackdropLook{"_UIBackdropViewSettingsLightLow", 2029, 9, 1.4, 1, 0, white(1, 0.22)},
    // The dark counterpart.
    BackdropLook{"_UIBackdropViewSettingsDarkLow", 2039, 9, 1.4, 0, 0, white(0.05, 0.42)},
    // Ink: only the strongest colours come through.
    BackdropLook{"_UIBackdropViewSettingsUltraDark", 2050, 24, 1.6, 0, 0, white(0.02, 0.86)},
    // The deepest blur, lifted by a little grey and then darkened: an even, calm ground for digits.
    BackdropLook{"_UIBackdropViewSettingsPasscodePaddle", 3900, 44, 1.5, 0.6, 0.14, white(0, 0.40)},
    // Plain milk glass.
    BackdropLook{"_UIBackdropViewSettingsLight", 2020, 30, 1.8, 1, 0, white(1, 0.34)},
    // Colour only: strong saturation without a tint.
    BackdropLook{"_UIBackdropViewSettingsColored", 2040, 24, 2.4, 1, 0, kNoTint},
    // Between light and paper.
    BackdropLook{"_UIBackdropViewSettingsSemiLight", 2070, 24, 1.8, 1, 0, white(0.97, 0.58)},
    // The same without the glow: unchanged colours under a matt grey.
    BackdropLook{"_UIBackdropViewSettingsFlatSemiLight", 2071, 24, 0.9, 0.5, 0.12,
                 white(0.92, 0.52)},
    // Maximum saturation, slightly darkened against glare.
    BackdropLook{"_UIBackdropViewSettingsUltraColored", 2080, 34, 3.4, 0, 0, white(0, 0.14)},
    // The cool grey behind the keys of the keyboard.
    BackdropLook{"_UIBackdropViewSettingsLightKeyboard", 3901, 20, 1.3, 1, 0,
                 quartzcore::Rgba{0.82, 0.84, 0.87, 0.76}},
};

constexpr double kThinnestTint = 0.26;
constexpr double kThickestTint = 0.52;

}  // namespace

std::span<const BackdropLook> backdrop_looks() {
  return kLooks;
}

const BackdropLook& look_of_style(_UIBackdropViewStyle style) {
  const auto with = [](_UIBackdropViewStyle wanted) {
    return std::find_if(kLooks.begin(), kLooks.end(),
                        [&](const BackdropLook& look) { return look.style == wanted; });
  };
  const auto found = with(style);
  return found != kLooks.end() ? *found : *with(kFallbackStyle);
}

const BackdropLook* look_of_class(objc::Class cls) {
  const char* name = class_getName(cls);
  const auto found = std::find_if(kLooks.begin(), kLooks.end(), [&](const BackdropLook& look) {
    return std::strcmp(look.class_name, name) == 0;
  });
  return found != kLooks.end() ? &*found : nullptr;
}

double adaptive_tint_alpha(double luminance) {
  return std::lerp(kThickestTint, kThinnestTint, std::clamp(luminance, 0.0, 1.0));
}

}  // namespace host::uikit
