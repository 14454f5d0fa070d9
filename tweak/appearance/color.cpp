#include "tweak/appearance/color.h"

#include "tweak/preferences/preferences.h"

namespace sonavue {
namespace {

struct NamedColor {
  NSString name;
  UIColor (*make)();
};

// Dark enough to be legible on a light blur.
UIColor translucent_black() {
  return UIColor::colorWithWhite(0, 0.45);
}

}  // namespace

UIColor color(PreferenceKey key) {
  const auto wanted = objc::cast<NSObject>(getPref(key, "clear"_ns));
  const NamedColor colors[] = {
      {"black"_ns, &UIColor::blackColor},   {"white"_ns, &UIColor::whiteColor},
      {"gray"_ns, &UIColor::grayColor},     {"red"_ns, &UIColor::redColor},
      {"green"_ns, &UIColor::greenColor},   {"blue"_ns, &UIColor::blueColor},
      {"cyan"_ns, &UIColor::cyanColor},     {"magenta"_ns, &UIColor::magentaColor},
      {"orange"_ns, &UIColor::orangeColor}, {"purple"_ns, &UIColor::purpleColor},
      {"brown"_ns, &UIColor::brownColor},   {"clear"_ns, &translucent_black},
  };
  for (const NamedColor& candidate : colors) {
    if (wanted.isEqual(candidate.name)) return candidate.make();
  }
  return UIColor::blackColor();
}

}  // namespace sonavue
