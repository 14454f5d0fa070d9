#pragma once

#include <cairo.h>

#include <functional>

#include "host/screen/phone_body.h"

namespace host::screen {

/// The light of the ground that the phone lies on.
inline constexpr double kGroundLight = 0.17;

/// Draws the body with cairo, in points; the place of the screen stays black.
void draw_body(cairo_t* drawing, const PhoneBody& body,
               const std::function<bool(Button)>& is_pressed);

}  // namespace host::screen
