#include "host/quartzcore/drawing/context.h"

#include <algorithm>
#include <cmath>

#include "host/quartzcore/pixels/scaled_copy.h"

namespace host::quartzcore {
namespace {

// The drawing library's pattern filter samples four pixels; larger reductions are averaged
// beforehand.
constexpr double kLargestPlainReduction = 2;

int pixels(double points, double scale) {
  // A size like 10.1 × 2 must not gain a pixel through a rounding error.
  return std::max(1, static_cast<int>(std::ceil(points * scale - 1e-6)));
}

CGSize size_in_pixels(cairo_t* drawing, CGSize size) {
  double across_x = size.width, across_y = 0;
  double down_x = 0, down_y = size.height;
  cairo_user_to_device_distance(drawing, &across_x, &across_y);
  cairo_user_to_device_distance(drawing, &down_x, &down_y);
  return {std::hypot(across_x, across_y), std::hypot(down_x, down_y)};
}

}  // namespace

CGContextRef make_bitmap_context(CGSize size, double scale, Opacity opacity) {
  auto* context = new CGContext;
  context->surface = make_surface(pixels(size.width, scale), pixels(size.height, scale));
  context->drawing = draw_on(context->surface);
  context->opacity = opacity;
  if (opacity == Opacity::Opaque) {
    cairo_set_source_rgb(context->cairo(), 0, 0, 0);
    cairo_paint(context->cairo());
  }
  cairo_scale(context->cairo(), scale, scale);
  return context;
}

void draw_image(cairo_t* drawing, const Image& image, CGRect rect, double alpha) {
  if (rect.size.width <= 0 || rect.size.height <= 0) return;
  const CGSize target = size_in_pixels(drawing, rect.size);
  Surface source = image.surface();
  if (image.width() > target.width * kLargestPlainReduction ||
      image.height() > target.height * kLargestPlainReduction) {
    source = scaled_copy(source, static_cast<int>(std::ceil(target.width)),
                         static_cast<int>(std::ceil(target.height)));
  }
  cairo_save(drawing);
  cairo_rectangle(drawing, rect.min_x(), rect.min_y(), rect.size.width, rect.size.height);
  cairo_clip(drawing);
  cairo_translate(drawing, rect.min_x(), rect.min_y());
  cairo_scale(drawing, rect.size.width / width_of(source), rect.size.height / height_of(source));
  cairo_set_source_surface(drawing, source.get(), 0, 0);
  // Without padding the edge pixels would blend with the transparency around the picture.
  cairo_pattern_set_extend(cairo_get_source(drawing), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(drawing), CAIRO_FILTER_BILINEAR);
  cairo_paint_with_alpha(drawing, alpha);
  cairo_restore(drawing);
}

}  // namespace host::quartzcore
