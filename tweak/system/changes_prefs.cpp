#include "tweak/system/changes_prefs.h"

#include "tweak/Sonavue2.h"
#include "tweak/appearance/blur_style.h"
#include "tweak/appearance/colouring.h"
#include "tweak/look/music_application.h"
#include "tweak/preferences/get_pref.h"
#include "tweak/search/search.h"

namespace sonavue {
namespace {

constexpr CGFloat kRoundCorner = 50.0;
constexpr PanelColours kChosenColours{[] { return color("tint"_ns); },
                                      [] { return color("font_tint"_ns); }};

bool is_only_in_cloud(MPMediaItem item) {
  return objc::cast<NSNumber>(item.valueForProperty(MPMediaItemPropertyIsCloudItem)).boolValue();
}

void list_songs() {
  if (preference_is_on("cloud"_ns, NO)) {
    songItems.release();
    songItems = NSMutableArray::alloc().initWithArray(fullList.items());
  } else {
    songItems.removeAllObjects();
    for (const auto item : fullList.items().of<MPMediaItem>()) {
      if (!is_only_in_cloud(item)) songItems.addObject(item);
    }
  }
  read_titles_again();
  tableView.reloadData();
}

// Off, the icon loses the home screen's own recognisers too, until the drag is on again.
void switch_drag(SpringBoard self) {
  if (preference_is_on("apex"_ns, NO)) return;
  enabled = preference_in_file("enable"_ns);
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
  art.layer().setCornerRadius(preference_is_on("square"_ns, NO) ? 0 : kRoundCorner);
  colour_content(kChosenColours);
  legibility = preference_is_on("legibility"_ns, NO);
  colour_edges(kChosenColours);
  apply_blur(blur);
}

}  // namespace sonavue
