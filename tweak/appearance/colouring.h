#pragma once

#include "platform/UIKit/UIColor.h"

namespace sonavue {

/// Where a colour comes from; it is asked anew for every control.
using ColourSource = UIColor (*)();

struct PanelColours {
  ColourSource controls;
  ColourSource texts;
};

/// Colours the artwork's border, the album tiles, the transport and the texts.
void colour_content(PanelColours colours);

/// Colours the search field's placeholder, the separators, the edges of the lists, the ring and the
/// grabber.
void colour_edges(PanelColours colours);

}  // namespace sonavue
