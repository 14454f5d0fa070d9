#include "tweak/Sonavue2.h"

#include "objc/autorelease_pool.h"
#include "tweak/banner/banner.h"
#include "tweak/banner/gesture_listener.h"
#include "tweak/drag/drag.h"
#include "tweak/drag/icon_watch.h"
#include "tweak/drag/present.h"
#include "tweak/library/album_songs.h"
#include "tweak/library/album_table.h"
#include "tweak/library/album_zoom.h"
#include "tweak/library/song_list.h"
#include "tweak/motion/album_table_slide.h"
#include "tweak/panel/scroller.h"
#include "tweak/playback/now_playing.h"
#include "tweak/playback/transport.h"
#include "tweak/preferences/get_pref.h"
#include "tweak/search/hits.h"
#include "tweak/search/search.h"
#include "tweak/share/share.h"
#include "tweak/system/changes_prefs.h"
#include "tweak/system/device.h"
#include "tweak/system/launch.h"
#include "tweak/system/methods.h"
#include "tweak/system/system_events.h"
#include "ui/UIImageAverageColorAddition.h"

// The table of what the extension adds to the home screen, and the way it comes in: everything
// starts from the load of this library.

namespace sonavue {
namespace {

// Names are those of the first version and are kept to the letter, since other people's extensions
// may call them.
void add_methods() {
  const MethodRow rows[] = {
      row<&deviceNumber>("deviceNumber"),
      row<&tweet>("tweet"),
      row<&zoomInAlbum>("zoomInAlbum:"),
      row<&zoomOutAlbum>("zoomOutAlbum:"),
      row<&playSongInAlbum>("playSongInAlbum:"),
      row<&presentBanner>("presentBanner:"),
      row<&showBanner>("showBanner"),
      row<&dismissBanner>("dismissBanner"),
      row<&textDidChange>("textDidChange:"),
      row<&textFieldDidBeginEditing>("textFieldDidBeginEditing:"),
      row<&textFieldDidEndEditing>("textFieldDidEndEditing:"),
      row<&textFieldShouldReturn>("textFieldShouldReturn:"),
      row<&showTable>("showTable"),
      row<&dismisWithNoAction>("dismisWithNoAction"),
      row<&gesture_should_receive_touch>("gestureRecognizer:shouldReceiveTouch:"),
      row<&gestures_may_be_simultaneous>(
          "gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:"),
      row<&playStop>("playStop"),
      row<&playBackSong>("playBackSong"),
      row<&playNextSong>("playNextSong"),
      row<&change>("change:"),
      row<&changePreferences>("changePreferences"),
      row<&changesPrefs>("changesPrefs"),
      row<&infoMusic>("infoMusic"),
      row<&Loping1>("Loping1"),
      row<&sposta>("sposta:"),
      row<&sposta1>("sposta1:"),
      row<&dismis>("dismis:"),
      row<&present>("present"),
  };
  const objc::Class spring_board = objc_getClass("SpringBoard");
  if (!spring_board) return;
  for (const MethodRow& method : rows) {
    class_addMethod(spring_board, sel_registerName(method.selector), method.body, method.types);
  }
}

void make_classes() {
  make_progress_view();
  make_progress_view_ring();
  make_average_color_addition();
  make_song_list_source();
  make_hits();
  make_album_table_source();
  make_scroller();
  make_gesture_listener();
}

void install_hooks() {
  add_methods();
  hook_launch();
  hook_system_events();
}

[[gnu::constructor]] void load() {
  const objc::AutoreleasePool pool;
  make_classes();
  install_hooks();
  fill_globals();
}

}  // namespace
}  // namespace sonavue
