#include "tweak/appearance/colouring.h"

#include "tweak/Sonavue2.h"
#include "tweak/look/pieces.h"

namespace sonavue {
namespace {

// The strip counts as one control: a colour from the preferences is read once for all of its tiles,
// since a large library has thousands.
void colour_album_tiles(PanelColours colours) {
  const CGColorRef border = colours.controls().CGColor();
  const UIColor text = colours.texts();
  for (const auto tile : albums.subviews().of<UIView>()) {
    for (const auto part : tile.subviews().of<UIView>()) {
      if (part.isKindOfClass(UIImageView::cls())) {
        part.layer().setBorderColor(border);
      } else if (part.isKindOfClass(UILabel::cls())) {
        objc::cast<UILabel>(part).setTextColor(text);
      }
    }
  }
}

}  // namespace

void colour_content(PanelColours colours) {
  art.layer().setBorderColor(colours.controls().CGColor());
  colour_album_tiles(colours);
  for (const UIView control : {UIView(back), UIView(play), UIView(next), UIView(search_icon)})
    control.setTintColor(colours.controls());
  searchBar.setTextColor(colours.texts());
  title.setTextColor(colours.texts());
  artist.setTextColor(colours.texts());
}

void colour_edges(PanelColours colours) {
  set_placeholder(colours.texts());
  tableView.setSeparatorColor(colours.controls());
  tablev.setSeparatorColor(colours.controls());
  for (const UIView line : {top, bottom, top1, top2, bottom1})
    line.setBackgroundColor(colours.controls());
  ring.setPrimaryColor(colours.controls());
  ring.setSecondaryColor(colours.controls());
  grabs.setTintColor(colours.controls());
}

}  // namespace sonavue
