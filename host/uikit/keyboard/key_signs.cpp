#include "host/uikit/keyboard/key_signs.h"

#include <array>

#include "host/uikit/keyboard/key_painter.h"

namespace host::uikit {
namespace {

constexpr double kLine = 1.3;

struct Corner {
  double x, y;
};

/// Corners are relative to the centre, in units of the symbol's size.
template <std::size_t Count>
void add_outline(cairo_t* drawing, CGPoint centre, double size,
                 const std::array<Corner, Count>& corners) {
  cairo_new_path(drawing);
  for (const Corner& corner : corners)
    cairo_line_to(drawing, centre.x + corner.x * size, centre.y + corner.y * size);
  cairo_close_path(drawing);
}

void stroke(cairo_t* drawing) {
  cairo_set_line_width(drawing, kLine);
  cairo_set_line_join(drawing, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_cap(drawing, CAIRO_LINE_CAP_ROUND);
  cairo_stroke(drawing);
}

void add_cross(cairo_t* drawing, CGPoint centre, double reach) {
  for (const double slope : {1.0, -1.0}) {
    cairo_move_to(drawing, centre.x - reach, centre.y - slope * reach);
    cairo_line_to(drawing, centre.x + reach, centre.y + slope * reach);
  }
}

}  // namespace

void paint_shift_sign(cairo_t* drawing, CGPoint centre, double size, Ink ink) {
  // An arrow with a broad stem; when locked, it has a line below.
  static constexpr std::array<Corner, 7> kArrow{{{0, -0.5},
                                                 {0.56, 0.06},
                                                 {0.26, 0.06},
                                                 {0.26, 0.46},
                                                 {-0.26, 0.46},
                                                 {-0.26, 0.06},
                                                 {-0.56, 0.06}}};
  cairo_save(drawing);
  const bool lifted = ink == Ink::Underlined;
  const CGPoint middle{centre.x, lifted ? centre.y - 0.11 * size : centre.y};
  add_outline(drawing, middle, size, kArrow);
  if (ink != Ink::Outline) cairo_fill_preserve(drawing);
  stroke(drawing);
  if (lifted) {
    add_rounded_rect(drawing,
                     {centre.x - 0.29 * size, centre.y + 0.48 * size, 0.58 * size, 0.14 * size},
                     0.04 * size);
    cairo_fill(drawing);
  }
  cairo_restore(drawing);
}

void paint_backspace_sign(cairo_t* drawing, CGPoint centre, double size, Ink ink) {
  static constexpr std::array<Corner, 5> kTag{
      {{-0.74, 0}, {-0.26, -0.5}, {0.72, -0.5}, {0.72, 0.5}, {-0.26, 0.5}}};
  const CGPoint cross{centre.x + 0.2 * size, centre.y};
  cairo_save(drawing);
  // In a group, the cross can be cut out of the filled shape.
  cairo_push_group(drawing);
  add_outline(drawing, centre, size, kTag);
  if (ink == Ink::Filled) {
    cairo_fill_preserve(drawing);
    stroke(drawing);
    cairo_set_operator(drawing, CAIRO_OPERATOR_CLEAR);
  } else {
    stroke(drawing);
  }
  add_cross(drawing, cross, 0.21 * size);
  stroke(drawing);
  cairo_set_operator(drawing, CAIRO_OPERATOR_OVER);
  cairo_pop_group_to_source(drawing);
  cairo_paint(drawing);
  cairo_restore(drawing);
}

void paint_dismiss_sign(cairo_t* drawing, CGPoint centre, double size) {
  cairo_save(drawing);
  const double half = size * 0.75;
  add_rounded_rect(drawing, {centre.x - half, centre.y - 0.6 * size, 2 * half, 0.75 * size}, 2);
  stroke(drawing);
  const double pitch = 2 * half / 6;
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 5; ++column) {
      const double left = centre.x - half + pitch * (column + 0.75);
      const double top = centre.y + size * (-0.42 + 0.24 * row);
      cairo_rectangle(drawing, left, top, pitch * 0.5, size * 0.1);
    }
  }
  cairo_fill(drawing);
  cairo_move_to(drawing, centre.x - 0.28 * size, centre.y + 0.36 * size);
  cairo_line_to(drawing, centre.x, centre.y + 0.58 * size);
  cairo_line_to(drawing, centre.x + 0.28 * size, centre.y + 0.36 * size);
  stroke(drawing);
  cairo_restore(drawing);
}

}  // namespace host::uikit
