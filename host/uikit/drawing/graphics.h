#pragma once

#include <cairo.h>

#include "platform/UIKit/UIGraphics.h"

namespace host::uikit {

/// Returns the current context as Cairo's, for drawing text; null when there is no current context.
cairo_t* current_drawing();

}  // namespace host::uikit
