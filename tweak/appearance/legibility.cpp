#include "tweak/appearance/legibility.h"

#include "tweak/Sonavue2.h"
#include "tweak/appearance/colouring.h"

namespace sonavue {
namespace {

constexpr float kBright = 0.5f;

bool is_bright(UIColor colour) {
  CGFloat red = 0, green = 0, blue = 0, alpha = 0;
  colour.getRed(&red, &green, &blue, &alpha);
  return static_cast<float>((red + green + blue) / 3) > kBright;
}

UIColor panel_colour() {
  return newColor;
}

}  // namespace

void colour_for_artwork() {
  const bool bright = is_bright(objc::send<UIColor>(art.image(), "mergedColor"_sel));
  const UIColor before = newColor;
  newColor = (bright ? UIColor::blackColor() : UIColor::whiteColor()).retain();
  before.release();
  const PanelColours colours{&panel_colour, &panel_colour};
  colour_content(colours);
  colour_edges(colours);
}

}  // namespace sonavue
