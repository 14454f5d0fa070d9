#pragma once

#include <pango/pango.h>

#include "host/uikit/text_layout/styled_text.h"
#include "host/uikit/text_layout/text_layout.h"

namespace host::uikit {

/// Creates a layout of the text with its fonts and colours, without limits on width or lines. Glyph
/// positions are not rounded, so measured and drawn sizes agree at any scale.
LayoutPointer make_pango_layout(const StyledText& text);

inline double points_from(int units) {
  return static_cast<double>(units) / PANGO_SCALE;
}
int pango_units(double points);

}  // namespace host::uikit
