#include "host/quartzcore/surface.h"

#include <libyuv/scale_argb.h>

#include <algorithm>
#include <cstring>

namespace host::quartzcore {
namespace {

Surface scale_once(const Surface& source, int width, int height) {
  const Surface result = make_surface(width, height);
  cairo_surface_flush(source.get());
  libyuv::ARGBScale(
      cairo_image_surface_get_data(source.get()), cairo_image_surface_get_stride(source.get()),
      width_of(source), height_of(source), cairo_image_surface_get_data(result.get()),
      cairo_image_surface_get_stride(result.get()), width, height, libyuv::kFilterBox);
  cairo_surface_mark_dirty(result.get());
  return result;
}

// Enlarging with the fast scaler would darken the picture by a shade and let an opaque one through.
Surface enlarge(const Surface& source, int width, int height) {
  const Surface result = make_surface(width, height);
  const Drawing drawing = draw_on(result);
  cairo_scale(drawing.get(), static_cast<double>(width) / width_of(source),
              static_cast<double>(height) / height_of(source));
  cairo_set_operator(drawing.get(), CAIRO_OPERATOR_SOURCE);
  cairo_set_source_surface(drawing.get(), source.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(drawing.get()), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(drawing.get()), CAIRO_FILTER_BILINEAR);
  cairo_paint(drawing.get());
  return result;
}

}  // namespace

Surface make_surface(int width, int height) {
  return Surface::adopt(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, std::max(width, 1), std::max(height, 1)));
}

Surface reused(Surface old, int width, int height) {
  const bool fits = old && width_of(old) == std::max(width, 1) &&
                    height_of(old) == std::max(height, 1) &&
                    cairo_surface_get_reference_count(old.get()) == 1;
  return fits ? std::move(old) : make_surface(width, height);
}

Surface emptied(Surface old, int width, int height) {
  Surface surface = reused(std::move(old), width, height);
  cairo_surface_flush(surface.get());
  std::memset(cairo_image_surface_get_data(surface.get()), 0,
              static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get())) *
                  static_cast<std::size_t>(height_of(surface)));
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

Drawing draw_on(const Surface& surface) {
  return Drawing::adopt(cairo_create(surface.get()));
}

Surface scaled_copy(const Surface& source, int width, int height) {
  width = std::max(width, 1);
  height = std::max(height, 1);
  Surface current = source;
  // The scaler looks at two pixels each way: larger steps would skip what lies between.
  while (width_of(current) >= 2 * width || height_of(current) >= 2 * height) {
    const int next_width =
        width_of(current) >= 2 * width ? width_of(current) / 2 : width_of(current);
    const int next_height =
        height_of(current) >= 2 * height ? height_of(current) / 2 : height_of(current);
    current = scale_once(current, next_width, next_height);
  }
  if (width_of(current) == width && height_of(current) == height) return current;
  return enlarge(current, width, height);
}

}  // namespace host::quartzcore
