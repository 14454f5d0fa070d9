#include "tweak/system/launch.h"

#include "objc/hook.h"
#include "platform/Foundation/NSTimer.h"
#include "tweak/Sonavue2.h"
#include "tweak/appearance/color.h"
#include "tweak/banner/gesture_listener.h"
#include "tweak/panel/panel.h"
#include "tweak/preferences/preferences.h"
#include "tweak/system/device.h"

namespace sonavue {
namespace {

constexpr double kIconWatchInterval = 0.1;
constexpr double kRefreshInterval = 1.0;
constexpr double kPreferencesInterval = 0.1;

// The timers are never invalidated.
void start_timer(double interval, objc::Sel action) {
  NSTimer::scheduledTimerWithTimeInterval(interval, Spring, action, nil, YES).fire();
}

}  // namespace

void launched(SpringBoard self, objc::Object application) {
  objc::original<&launched>(self, application);
  nowPlayingController = MPUNowPlayingController::alloc().init();
  register_gesture_listener();
  Spring = self;
  measure_device(self);
  if (!build_panel(self)) return;

  newColor = color(preference::tint()).retain();
  if (!preference_is_on(preference::apex(), NO)) start_timer(kIconWatchInterval, "Loping1"_sel);
  start_timer(kRefreshInterval, "infoMusic"_sel);
  start_timer(kPreferencesInterval, "changePreferences"_sel);
  objc::send<>(Spring, "changesPrefs"_sel);
}

}  // namespace sonavue
