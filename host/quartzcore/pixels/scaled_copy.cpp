#include "host/quartzcore/pixels/scaled_copy.h"

#include <algorithm>

#include "host/quartzcore/pixels/area_average.h"

namespace host::quartzcore {
namespace {

Surface enlarge(const Surface& source, int width, int height) {
  const Surface result = reused({}, width, height);
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

Surface scaled_copy(const Surface& source, int width, int height) {
  width = std::max(width, 1);
  height = std::max(height, 1);
  const int smaller_width = std::min(width, width_of(source));
  const int smaller_height = std::min(height, height_of(source));
  const bool shrinks = smaller_width < width_of(source) || smaller_height < height_of(source);
  const Surface current = shrinks ? area_average(source, smaller_width, smaller_height) : source;
  if (width_of(current) == width && height_of(current) == height) return current;
  return enlarge(current, width, height);
}

}  // namespace host::quartzcore
