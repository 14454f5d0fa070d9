#pragma once

#include <cairo.h>

#include <functional>

#include "host/screen/phone_body.h"

namespace host::screen {

/// The brightness of the background behind the phone.
inline constexpr double kGroundLight = 0.17;

/// Draws the body with Cairo, in points; the area of the screen is black.
void draw_body(cairo_t* drawing, const PhoneBody& body,
               const std::function<bool(Button)>& is_pressed);

}  // namespace host::screen
