#pragma once

#include <cairo.h>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

enum class Ink { Outline, Filled, Underlined };

// The symbols of keys without a title, around `centre` and in the context's colour; `size` is their
// height in points.
void paint_shift_sign(cairo_t* drawing, CGPoint centre, double size, Ink ink);
/// The cross inside is cut out, so it shows what is behind.
void paint_backspace_sign(cairo_t* drawing, CGPoint centre, double size, Ink ink);
void paint_dismiss_sign(cairo_t* drawing, CGPoint centre, double size);

}  // namespace host::uikit
