#pragma once

#include <pango/pango.h>

#include "host/uikit/text_layout/styled_text.h"
#include "host/uikit/text_layout/text_layout.h"

namespace host::uikit {

/// A layout of the text alone, with its fonts and colours and without limits of width or lines.
/// Glyphs stand where their outlines say, so that what is measured is what is drawn at any scale.
LayoutPointer make_pango_layout(const StyledText& text);

inline double points_from(int units) {
  return static_cast<double>(units) / PANGO_SCALE;
}
int pango_units(double points);

}  // namespace host::uikit
