#include "tweak/system/launch.h"

#include "platform/Foundation/NSTimer.h"
#include "tweak/Sonavue2.h"
#include "tweak/banner/gesture_listener.h"
#include "tweak/panel/panel.h"
#include "tweak/preferences/get_pref.h"
#include "tweak/system/device.h"
#include "tweak/system/methods.h"

namespace sonavue {
namespace {

constexpr double kIconWatchInterval = 0.1;
constexpr double kRefreshInterval = 1.0;
constexpr double kPreferencesInterval = 0.1;

using DidFinishLaunching =
    Replaced<"SpringBoard", "applicationDidFinishLaunching:", void(SpringBoard, objc::Object)>;

// These live as long as the home screen.
void start_timer(double interval, objc::Sel action) {
  NSTimer::scheduledTimerWithTimeInterval(interval, Spring, action, nil, YES).fire();
}

void launched(SpringBoard self, objc::Object application) {
  DidFinishLaunching::original(self, application);
  nowPlayingController = MPUNowPlayingController::alloc().init();
  register_gesture_listener();
  Spring = self;
  measure_device(self);
  if (!build_panel(self)) return;

  newColor = color("tint"_ns).retain();
  if (!preference_is_on("apex"_ns, NO)) start_timer(kIconWatchInterval, "Loping1"_sel);
  start_timer(kRefreshInterval, "infoMusic"_sel);
  start_timer(kPreferencesInterval, "changePreferences"_sel);
  objc::send<>(Spring, "changesPrefs"_sel);
}

}  // namespace

void hook_launch() {
  DidFinishLaunching::replace_with<&launched>();
}

}  // namespace sonavue
