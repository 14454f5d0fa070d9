#include "tweak/Sonavue2.h"

#include "objc/autorelease_pool.h"
#include "objc/exported_global.h"
#include "objc/hook.h"
#include "platform/UIKit/UIScreen.h"
#include "tweak/banner/banner.h"
#include "tweak/banner/gesture_listener.h"
#include "tweak/banner/grabber.h"
#include "tweak/drag/drag.h"
#include "tweak/drag/icon_watch.h"
#include "tweak/drag/present.h"
#include "tweak/library/album_songs.h"
#include "tweak/library/album_table.h"
#include "tweak/library/album_zoom.h"
#include "tweak/library/song_list.h"
#include "tweak/library/track_lock.h"
#include "tweak/motion/album_table_slide.h"
#include "tweak/panel/scroller.h"
#include "tweak/playback/now_playing.h"
#include "tweak/playback/transport.h"
#include "tweak/preferences/poll.h"
#include "tweak/search/hits.h"
#include "tweak/search/search.h"
#include "tweak/search/title_reader.h"
#include "tweak/share/share.h"
#include "tweak/system/changes_prefs.h"
#include "tweak/system/device.h"
#include "tweak/system/launch.h"
#include "tweak/system/methods.h"
#include "tweak/system/system_events.h"
#include "ui/UIImageAverageColorAddition.h"

// Everything that the extension changes in the home screen, and its entry point: the constructor
// that runs when this library is loaded.

namespace sonavue {

#define SONAVUE_DEFINE(Type, name, ...) constinit Type name = __VA_ARGS__;
SONAVUE_GLOBALS(SONAVUE_DEFINE)
#undef SONAVUE_DEFINE

namespace {

void add_methods() {
  // The names are those of the first version. They must not change: other extensions may call
  // them.
  const AddedMethod methods[] = {
      adds<&deviceNumber>("deviceNumber"),
      adds<&tweet>("tweet"),
      adds<&zoomInAlbum>("zoomInAlbum:"),
      adds<&zoomOutAlbum>("zoomOutAlbum:"),
      adds<&playSongInAlbum>("playSongInAlbum:"),
      adds<&presentBanner>("presentBanner:"),
      adds<&showBanner>("showBanner"),
      adds<&dismissBanner>("dismissBanner"),
      adds<&textDidChange>("textDidChange:"),
      adds<&textFieldDidBeginEditing>("textFieldDidBeginEditing:"),
      adds<&textFieldDidEndEditing>("textFieldDidEndEditing:"),
      adds<&textFieldShouldReturn>("textFieldShouldReturn:"),
      adds<&showTable>("showTable"),
      adds<&dismisWithNoAction>("dismisWithNoAction"),
      adds<&gesture_should_receive_touch>("gestureRecognizer:shouldReceiveTouch:"),
      adds<&gestures_may_be_simultaneous>(
          "gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:"),
      adds<&playStop>("playStop"),
      adds<&playBackSong>("playBackSong"),
      adds<&playNextSong>("playNextSong"),
      adds<&change>("change:"),
      adds<&changePreferences>("changePreferences"),
      adds<&changesPrefs>("changesPrefs"),
      adds<&infoMusic>("infoMusic"),
      adds<&Loping1>("Loping1"),
      adds<&sposta>("sposta:"),
      adds<&sposta1>("sposta1:"),
      adds<&dismis>("dismis:"),
      adds<&present>("present"),
  };
  const objc::Class spring_board = objc_getClass("SpringBoard");
  if (!spring_board) return;
  for (const AddedMethod& method : methods)
    class_addMethod(spring_board, sel_registerName(method.selector), method.body, method.types);
}

// In this order.
void replace_methods() {
  objc::hook<"SpringBoard", "applicationDidFinishLaunching:", &launched>();
  objc::hook<"SBIconView", "touchesBegan:withEvent:", &touches_began_on_icon>();
  objc::hook<"SBUIController", "clickedMenuButton", &home_button_clicked>();
  objc::hook<"SBUIController", "handleMenuDoubleTap", &home_button_clicked_twice>();
  objc::hook<"SBBannerController", "_presentBannerForContext:reason:", &banner_presented>();
  objc::hook<"SBLockScreenViewController", "_handleDisplayTurnedOff", &display_turned_off>();
  objc::hook<"SBLockScreenViewController", "prepareForUIUnlock", &unlock_prepared>();
  objc::hook<"SBNotificationCenterViewController", "hostWillPresent", &notification_center_shown>();
  objc::hook<"SBControlCenterContainerView", "controlCenterWillPresent", &control_center_shown>();
  objc::hook_class_method<"SBReachabilityManager", "reachabilitySupported",
                          &reachability_is_supported>();
  objc::hook<"SBReachabilityManager", "_handleReachabilityDeactivated",
             &reachability_deactivated>();
  objc::hook<"SBReachabilityManager", "_handleReachabilityActivated", &reachability_activated>();
  objc::hook<"SBReachabilityManager", "_handleSignificantTimeChanged", &time_changed>();
  objc::hook<"SBReachabilityManager", "_keepAliveTimerFired:", &kept_alive>();
  objc::hook<"SBMediaController", "_systemVolumeChanged:", &volume_changed>();
  objc::hook<"UIWindow", "_shouldCreateContextAsSecure", &window_is_secure>();
  objc::hook<"MPMusicPlayerController", "_playbackStateDidChange:", &playback_state_changed>();
}

void make_classes() {
  make_progress_view();
  make_progress_view_ring();
  make_average_color_addition();
  make_song_list_source();
  make_hits();
  make_title_reader();
  make_album_table_source();
  make_scroller();
  make_gesture_listener();
}

// Sets the globals that are available before the home screen launches.
void fill_globals() {
  mc = SBMediaController::sharedInstance();
  rect = UIScreen::mainScreen().bounds();
  result = SVHits::alloc().init();
  musicPlayer = MPMusicPlayerController::iPodMusicPlayer();
}

[[gnu::constructor]] void load() {
  const objc::AutoreleasePool pool;
  make_classes();
  add_methods();
  replace_methods();
  fill_globals();
}

}  // namespace
}  // namespace sonavue

// Read by the host's console. Nothing reads it on a phone.
extern "C" __attribute__((visibility("default"), used))
const objc::ExportedGlobal exported_globals[] = {
#define SONAVUE_EXPORT(Type, name, initial) \
  {#name, objc::Encode<Type>::text.c_str(), &sonavue::name},
    SONAVUE_GLOBALS(SONAVUE_EXPORT)
#undef SONAVUE_EXPORT
        {}};
