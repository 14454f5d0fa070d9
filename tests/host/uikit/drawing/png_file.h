#pragma once

#include <cairo.h>

#include <string>

namespace host::test {

/// Writes an opaque picture of `width` by `height` pixels, grey unless told otherwise.
inline void write_png(const std::string& path, int width, int height, double white = 0.5) {
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height);
  cairo_t* drawing = cairo_create(surface);
  cairo_set_source_rgb(drawing, white, white, white);
  cairo_paint(drawing);
  cairo_destroy(drawing);
  cairo_surface_write_to_png(surface, path.c_str());
  cairo_surface_destroy(surface);
}

}  // namespace host::test
