#pragma once

#include <cairo.h>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

enum class Ink { Outline, Filled, Underlined };

// The signs of keys that have no words, around `centre` and in the context's colour; `size` is
// their height in points.
void paint_shift_sign(cairo_t* drawing, CGPoint centre, double size, Ink ink);
/// The cross in it has the colour of what is behind: it is left out.
void paint_backspace_sign(cairo_t* drawing, CGPoint centre, double size, Ink ink);
void paint_dismiss_sign(cairo_t* drawing, CGPoint centre, double size);

}  // namespace host::uikit
