#pragma once

#include <cairo.h>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::screen {

/// Draws the list of keys (`key_list.h`) as a card in the middle of `size`, over a veil. A size too
/// small for the text shrinks it.
void draw_help_page(cairo_t* drawing, CGSize size);

}  // namespace host::screen
