#include "tweak/appearance.h"

#include "platform/Foundation/NSAttributedString.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/UIKit/NSAttributedStringAdditions.h"
#include "tweak/blur_style.h"
#include "tweak/globals.h"
#include "tweak/panel/music_icon.h"
#include "tweak/preferences.h"

namespace sonavue {
namespace {

constexpr CGFloat kRoundCorner = 50.0;

UIColor tint() {
  return color("tint"_ns);
}
UIColor text_colour() {
  return color("font_tint"_ns);
}

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
  tableView.reloadData();
}

// Off, the icon loses the home screen's own recognisers too, until the drag is on again.
void switch_drag(SpringBoard self) {
  if (preference_is_on("apex"_ns, NO)) return;
  enabled = preference_in_file("enable"_ns);
  if (enabled) {
    attach_drag(self);
  } else {
    remove_gesture_recognizers(musicIcon);
  }
}

void shape_artwork() {
  art.layer().setCornerRadius(preference_is_on("square"_ns, NO) ? 0 : kRoundCorner);
  art.layer().setBorderColor(tint().CGColor());
}

void colour_album_tiles() {
  for (const auto tile : albums.subviews().of<UIView>()) {
    for (const auto part : tile.subviews().of<UIView>()) {
      if (part.isKindOfClass(UIImageView::cls())) part.layer().setBorderColor(tint().CGColor());
      if (part.isKindOfClass(UILabel::cls())) objc::cast<UILabel>(part).setTextColor(text_colour());
    }
  }
}

void colour_placeholder() {
  const auto placeholder = NSAttributedString::alloc().initWithString(
      "Search"_ns,
      NSDictionary::dictionaryWithObject(text_colour(), NSForegroundColorAttributeName));
  searchBar.setAttributedPlaceholder(placeholder);
  placeholder.release();
}

void colour_controls() {
  back.setTintColor(tint());
  play.setTintColor(tint());
  next.setTintColor(tint());
  search_icon.setTintColor(tint());
  searchBar.setTextColor(text_colour());
  title.setTextColor(text_colour());
  artist.setTextColor(text_colour());
}

void colour_lines() {
  tableView.setSeparatorColor(tint());
  tablev.setSeparatorColor(tint());
  for (const UIView line : {top, bottom, top1, top2, bottom1})
    line.setBackgroundColor(tint());
  ring.setPrimaryColor(tint());
  ring.setSecondaryColor(tint());
  grabs.setTintColor(tint());
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
  shape_artwork();
  colour_album_tiles();
  colour_controls();
  legibility = preference_is_on("legibility"_ns, NO);
  colour_placeholder();
  colour_lines();
  apply_blur(blur);
}

}  // namespace sonavue
