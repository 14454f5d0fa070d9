#include "tweak/panel/panel.h"

#include "tweak/Sonavue2.h"
#include "tweak/banner/grabber.h"
#include "tweak/drag/icon_watch.h"
#include "tweak/library/album_strip.h"
#include "tweak/library/album_table.h"
#include "tweak/library/song_list.h"
#include "tweak/library/songs.h"
#include "tweak/look/music_application.h"
#include "tweak/panel/scroller.h"
#include "tweak/panel/song_page.h"
#include "tweak/panel/windows.h"

namespace sonavue {

// Each step uses views from the previous steps.
BOOL build_panel(SpringBoard self) {
  make_windows();
  make_backdrop();
  if (!find_music_application()) return NO;
  musicIcon = find_music_icon();
  attach_first_drag(self);
  make_icon_twin(self);
  make_pages();
  make_artwork(self);
  make_texts();
  make_transport(self);
  make_closing_gestures(self);
  make_album_table();
  make_library();
  make_song_list(self);
  make_grabber(self);
  make_album_strip(self);
  make_page_scrolling();
  return YES;
}

}  // namespace sonavue
