#include "tweak/system/changes_prefs.h"

#include "tweak/Sonavue2.h"
#include "tweak/appearance/blur_style.h"
#include "tweak/appearance/color.h"
#include "tweak/appearance/colouring.h"
#include "tweak/drag/icon_watch.h"
#include "tweak/library/songs.h"
#include "tweak/look/measures.h"
#include "tweak/look/music_application.h"
#include "tweak/preferences/preferences.h"

namespace sonavue {
namespace {

constexpr PanelColours kChosenColours{[] { return color(preference::tint()); },
                                      [] { return color(preference::font_tint()); }};

// Switching the drag off also removes the home screen's own recognisers from the icon, until the
// drag is switched on again.
void switch_drag(SpringBoard self) {
  if (preference_is_on(preference::apex(), NO)) return;
  enabled = preference_in_file(preference::enable());
  if (enabled && !is_in_folder(musicIcon)) {
    attach_drag(self);
  } else {
    remove_gesture_recognizers(musicIcon);
  }
}

void apply_blur(BlurStyle style) {
  main.setStyle(style.number);
  blurTable.setStyle(style.number);
  main.setInputSettings(style.settings);
  blurTable.setInputSettings(style.settings);
  main.applySettings(style.settings);
  blurTable.applySettings(style.settings);
}

}  // namespace

void changesPrefs(SpringBoard self) {
  list_songs();
  switch_drag(self);
  const BlurStyle blur = chosen_blur();
  art.layer().setCornerRadius(preference_is_on(preference::square(), NO) ? 0 : kArtworkCorner);
  colour_content(kChosenColours);
  legibility = preference_is_on(preference::legibility(), NO);
  colour_edges(kChosenColours);
  apply_blur(blur);
}

}  // namespace sonavue
