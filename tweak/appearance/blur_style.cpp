#include "tweak/appearance/blur_style.h"

#include "tweak/preferences/preferences.h"

namespace sonavue {
namespace {

constexpr _UIBackdropViewStyle kInitialBlurStyle = 3900;

struct NamedBlur {
  NSString name;
  objc::Class settings;
  _UIBackdropViewStyle number;
};

BlurStyle make(objc::Class settings, _UIBackdropViewStyle number) {
  return {number, objc::send<_UIBackdropViewSettings>(objc::Object(settings),
                                                      "settingsForStyle:"_sel, number)};
}

}  // namespace

_UIBackdropViewSettings initial_blur() {
  return _UIBackdropViewSettingsPasscodePaddle::settingsForStyle(kInitialBlurStyle);
}

BlurStyle chosen_blur() {
  const auto wanted = objc::cast<NSObject>(getPref(preference::blur(), "adaptive_light"_ns));
  const NamedBlur blurs[] = {
      {"adaptive_light"_ns, _UIBackdropViewSettingsAdaptiveLight::cls(), 2060},
      {"dark"_ns, _UIBackdropViewSettingsDark::cls(), 2030},
      {"ultra_light"_ns, _UIBackdropViewSettingsUltraLight::cls(), 2010},
      {"light_low"_ns, _UIBackdropViewSettingsLightLow::cls(), 2029},
      {"dark_low"_ns, _UIBackdropViewSettingsDarkLow::cls(), 2039},
      {"ultra_dark"_ns, _UIBackdropViewSettingsUltraDark::cls(), 2050},
      {"passcode"_ns, _UIBackdropViewSettingsPasscodePaddle::cls(), 3900},
      {"light"_ns, _UIBackdropViewSettingsLight::cls(), 2020},
      {"colored"_ns, _UIBackdropViewSettingsColored::cls(), 2040},
      {"semi_light"_ns, _UIBackdropViewSettingsSemiLight::cls(), 2070},
      {"flat_semi_light"_ns, _UIBackdropViewSettingsFlatSemiLight::cls(), 2071},
      {"ultra_colored"_ns, _UIBackdropViewSettingsUltraColored::cls(), 2080},
      {"light_keyboard"_ns, _UIBackdropViewSettingsLightKeyboard::cls(), 3901},
  };
  for (const NamedBlur& candidate : blurs) {
    if (wanted.isEqual(candidate.name)) return make(candidate.settings, candidate.number);
  }
  return make(_UIBackdropViewSettingsAdaptiveLight::cls(), 2060);
}

}  // namespace sonavue
