#include "host/screen/window_icon.h"

#include <SDL.h>
#include <cairo.h>

#include <numbers>

#include "host/screen/shapes.h"

namespace host::screen {
namespace {

constexpr int kIconSide = 128;
// Shares of the side.
constexpr double kIconRadius = 0.22;
constexpr double kRingRadius = 0.29;
constexpr double kRingWidth = 0.055;
constexpr double kPlayed = 0.68;
constexpr double kTriangle = 0.125;

void draw_icon_ground(cairo_t* drawing) {
  add_rounded(drawing, {0, 0, 1, 1}, kIconRadius);
  cairo_pattern_t* ground = cairo_pattern_create_linear(0, 0, 0, 1);
  cairo_pattern_add_color_stop_rgb(ground, 0, 0.98, 0.36, 0.42);
  cairo_pattern_add_color_stop_rgb(ground, 1, 0.55, 0.16, 0.62);
  cairo_set_source(drawing, ground);
  cairo_fill(drawing);
  cairo_pattern_destroy(ground);
}

void draw_ring(cairo_t* drawing, double share, double alpha) {
  constexpr double kTop = -std::numbers::pi / 2;
  cairo_new_path(drawing);
  cairo_arc(drawing, 0.5, 0.5, kRingRadius, kTop, kTop + share * 2 * std::numbers::pi);
  cairo_set_source_rgba(drawing, 1, 1, 1, alpha);
  cairo_set_line_width(drawing, kRingWidth);
  cairo_set_line_cap(drawing, CAIRO_LINE_CAP_ROUND);
  cairo_stroke(drawing);
}

void draw_triangle(cairo_t* drawing) {
  cairo_move_to(drawing, 0.5 - kTriangle * 0.75, 0.5 - kTriangle);
  cairo_line_to(drawing, 0.5 - kTriangle * 0.75, 0.5 + kTriangle);
  cairo_line_to(drawing, 0.5 + kTriangle * 1.1, 0.5);
  cairo_close_path(drawing);
  cairo_set_source_rgb(drawing, 1, 1, 1);
  cairo_set_line_join(drawing, CAIRO_LINE_JOIN_ROUND);
  cairo_set_line_width(drawing, kRingWidth / 2);
  cairo_fill_preserve(drawing);
  cairo_stroke(drawing);
}

}  // namespace

void set_window_icon(SDL_Window* window) {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kIconSide, kIconSide);
  cairo_t* drawing = cairo_create(surface);
  cairo_scale(drawing, kIconSide, kIconSide);
  draw_icon_ground(drawing);
  draw_ring(drawing, 1, 0.35);
  draw_ring(drawing, kPlayed, 1);
  draw_triangle(drawing);
  cairo_destroy(drawing);
  cairo_surface_flush(surface);
  SDL_Surface* icon = SDL_CreateRGBSurfaceWithFormatFrom(
      cairo_image_surface_get_data(surface), kIconSide, kIconSide, 32,
      cairo_image_surface_get_stride(surface), SDL_PIXELFORMAT_ARGB8888);
  SDL_SetWindowIcon(window, icon);
  SDL_FreeSurface(icon);
  cairo_surface_destroy(surface);
}

}  // namespace host::screen
