#pragma once

#include "platform/UIKit/UIColor.h"

namespace sonavue {

/// Returns a colour. It is called again for every control.
using ColourSource = UIColor (*)();

struct PanelColours {
  ColourSource controls;
  ColourSource texts;
};

/// Colours the artwork's border, the album tiles, the transport controls and the texts.
void colour_content(PanelColours colours);

/// Colours the search field's placeholder, the separators, the lists' edge lines, the ring and the
/// grabber.
void colour_edges(PanelColours colours);

}  // namespace sonavue
