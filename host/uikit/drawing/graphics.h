#pragma once

#include <cairo.h>

#include "platform/UIKit/UIGraphics.h"

namespace host::uikit {

/// The current context as Cairo's, for text; null when nothing can be drawn on.
cairo_t* current_drawing();

}  // namespace host::uikit
