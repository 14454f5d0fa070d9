#include "host/screen/phone_body_drawing.h"

#include <cmath>
#include <numbers>

#include "host/screen/shapes.h"

namespace host::screen {
namespace {

constexpr double kCaseRadius = 54;
constexpr double kRim = 3;
constexpr double kButtonRadius = 2;
constexpr double kPressedBy = 2;

struct Grey {
  double light;
};
constexpr Grey kGround{kGroundLight};
constexpr Grey kGlass{0.055};
constexpr Grey kRimLight{0.62};
constexpr Grey kRimDark{0.32};
constexpr Grey kMetal{0.48};
constexpr Grey kMetalPressed{0.78};
constexpr Grey kHome{0.09};
constexpr Grey kHomePressed{0.3};
constexpr Grey kHole{0.16};
constexpr Grey kSquare{0.5};

void set(cairo_t* drawing, Grey grey) {
  cairo_set_source_rgb(drawing, grey.light, grey.light, grey.light);
}

void add_circle(cairo_t* drawing, CGPoint centre, double radius) {
  cairo_new_sub_path(drawing);
  cairo_arc(drawing, centre.x, centre.y, radius, 0, 2 * std::numbers::pi);
}

/// Sets a source that looks like metal lit from above.
void set_metal(cairo_t* drawing, double top, double bottom, Grey light, Grey dark) {
  cairo_pattern_t* metal = cairo_pattern_create_linear(0, top, 0, bottom);
  cairo_pattern_add_color_stop_rgb(metal, 0, light.light, light.light, light.light);
  cairo_pattern_add_color_stop_rgb(metal, 1, dark.light, dark.light, dark.light);
  cairo_set_source(drawing, metal);
  cairo_pattern_destroy(metal);
}

void draw_side_button(cairo_t* drawing, const PhoneBody& body, Button button, bool pressed) {
  CGRect frame = body.frame_of(button);
  const CGPoint middle = body.case_frame().centre();
  const bool upright = frame.size.height > frame.size.width;
  if (pressed && upright) frame.origin.x += frame.centre().x < middle.x ? kPressedBy : -kPressedBy;
  if (pressed && !upright) frame.origin.y += kPressedBy;
  add_rounded(drawing, frame, kButtonRadius);
  set(drawing, pressed ? kMetalPressed : kMetal);
  cairo_fill(drawing);
}

void draw_case(cairo_t* drawing, const PhoneBody& body) {
  const CGRect outer = body.case_frame();
  add_rounded(drawing, outer, kCaseRadius);
  set_metal(drawing, outer.min_y(), outer.max_y(), kRimLight, kRimDark);
  cairo_fill(drawing);
  const CGRect glass{outer.min_x() + kRim, outer.min_y() + kRim, outer.size.width - 2 * kRim,
                     outer.size.height - 2 * kRim};
  add_rounded(drawing, glass, kCaseRadius - kRim);
  set(drawing, kGlass);
  cairo_fill(drawing);
}

/// Draws the earpiece and the camera beside it.
void draw_forehead(cairo_t* drawing, const PhoneBody& body) {
  constexpr CGSize kSlot{58, 6};
  constexpr double kCamera = 5;
  constexpr double kCameraGap = 26;
  const CGPoint centre{body.case_frame().centre().x,
                       (body.case_frame().min_y() + body.screen().min_y()) / 2};
  add_rounded(drawing,
              {centre.x - kSlot.width / 2, centre.y - kSlot.height / 2, kSlot.width, kSlot.height},
              kSlot.height / 2);
  add_circle(drawing, {centre.x - kSlot.width / 2 - kCameraGap, centre.y}, kCamera);
  set(drawing, kHole);
  cairo_fill(drawing);
}

void draw_home(cairo_t* drawing, const PhoneBody& body, bool pressed) {
  constexpr double kRing = 3;
  constexpr double kSquareSide = 20;
  constexpr double kSquareRadius = 5;
  constexpr double kLine = 1.6;
  const CGRect frame = body.frame_of(Button::Home);
  const CGPoint centre = frame.centre();
  const double radius = frame.size.width / 2;
  add_circle(drawing, centre, radius);
  set(drawing, pressed ? kHomePressed : kHome);
  cairo_fill(drawing);
  if (body.is_tall()) {
    add_circle(drawing, centre, radius - kRing / 2);
    set_metal(drawing, frame.min_y(), frame.max_y(), kRimDark, kRimLight);
    cairo_set_line_width(drawing, kRing);
  } else {
    add_rounded(drawing,
                {centre.x - kSquareSide / 2, centre.y - kSquareSide / 2, kSquareSide, kSquareSide},
                kSquareRadius);
    set(drawing, kSquare);
    cairo_set_line_width(drawing, kLine);
  }
  cairo_stroke(drawing);
}

}  // namespace

void draw_body(cairo_t* drawing, const PhoneBody& body,
               const std::function<bool(Button)>& is_pressed) {
  set(drawing, kGround);
  cairo_paint(drawing);
  for (const Button button : PhoneBody::buttons()) {
    if (button != Button::Home) draw_side_button(drawing, body, button, is_pressed(button));
  }
  draw_case(drawing, body);
  draw_forehead(drawing, body);
  draw_home(drawing, body, is_pressed(Button::Home));
  const CGRect screen = body.screen();
  cairo_rectangle(drawing, screen.min_x(), screen.min_y(), screen.size.width, screen.size.height);
  set(drawing, Grey{0});
  cairo_fill(drawing);
}

}  // namespace host::screen
