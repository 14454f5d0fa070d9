#include "host/springboard/surfaces/display.h"

#include <algorithm>

#include "host/springboard/common/make_view.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/parts/surface_window.h"
#include "host/springboard/parts/window_levels.h"
#include "host/uikit/touch/touch_input.h"

namespace host::springboard {
namespace {

constexpr CGFloat kDarkestVeil = 0.82;

}  // namespace

Display::Display()
    : veil_(make_surface_window(kBrightnessLevel)),
      dark_(make_view<UIWindow>(UIScreen::mainScreen().bounds())) {
  veil_->setUserInteractionEnabled(NO);
  veil_->setBackgroundColor(UIColor::blackColor());
  dark_->setWindowLevel(kDisplayOffLevel);
  dark_->setBackgroundColor(UIColor::blackColor());
}

Display::~Display() {
  uikit::set_touches_enabled(true);
  veil_->setHidden(YES);
  dark_->setHidden(YES);
}

void Display::turn_on() {
  is_on_ = true;
  uikit::set_touches_enabled(true);
  dark_->setHidden(YES);
}

void Display::turn_off() {
  is_on_ = false;
  uikit::set_touches_enabled(false);
  dark_->setHidden(NO);
}

void Display::set_brightness(double brightness) {
  brightness_ = std::clamp(brightness, 0.0, 1.0);
  veil_->setAlpha((1 - brightness_) * kDarkestVeil);
  veil_->setHidden(brightness_ == 1 ? YES : NO);
}

Display& display() {
  return SharedPart<Display>::get();
}

}  // namespace host::springboard
