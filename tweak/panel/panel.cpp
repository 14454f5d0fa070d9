#include "tweak/panel/panel.h"

#include "tweak/Sonavue2.h"
#include "tweak/look/music_application.h"
#include "tweak/look/pieces.h"
#include "tweak/preferences/get_pref.h"

namespace sonavue {

BOOL build_panel(SpringBoard self) {
  make_windows();
  make_backdrop();
  if (!find_music_application()) return NO;
  musicIcon = find_music_icon();
  if (!is_in_folder(musicIcon) && !preference_is_on("apex"_ns, NO)) {
    attach_drag(self);
    added = YES;
  }
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
