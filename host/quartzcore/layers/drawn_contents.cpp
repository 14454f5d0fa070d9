#include "host/quartzcore/layers/drawn_contents.h"

#include <cmath>

#include "host/quartzcore/drawing/context.h"
#include "host/quartzcore/layers/layer.h"
#include "host/quartzcore/layers/screen_density.h"
#include "host/quartzcore/pixels/scaled_copy.h"

namespace host::quartzcore {
namespace {

// Backing stores with more pixels than this on a side are drawn more coarsely, not refused.
constexpr double kLargestBackingSide = 8192;

// Letters begin at whole pixels. Where a point has few of them, that spoils the distances between
// letters, so several columns are drawn for each. Rows stay: letters stand sharply on their line.
constexpr int kColumnsPerPixel = 4;

/// The scale, in pixels per point, at which a layer of this size is drawn.
double drawing_scale(double contents_scale, CGSize size) {
  const double longest = std::max(size.width, size.height) * contents_scale;
  return contents_scale * std::min(1.0, kLargestBackingSide / longest);
}

Opacity opacity_of(CALayer layer) {
  return layer_of(layer).model.opaque ? Opacity::Opaque : Opacity::Translucent;
}

void draw_into(CGContextRef context, CALayer layer) {
  const CGPoint origin = layer_of(layer).model.properties.bounds.origin;
  cairo_translate(context->cairo(), -origin.x, -origin.y);
  layer.drawInContext(context);
}

CGImageRef draw_for_device(CALayer layer, CGSize size, double scale) {
  const Opacity opacity = opacity_of(layer);
  CGContextRef context = make_bitmap_context(size, drawing_scale(scale, size), opacity);
  draw_into(context, layer);
  // The pixels must be copied only if the context was retained, because its owner may draw again.
  CGImageRef image = context->references == 1 ? make_image(context->surface, opacity)
                                              : CGBitmapContextCreateImage(context);
  CGContextRelease(context);
  return image;
}

int whole_pixels(double points, double scale) {
  return std::max(1, static_cast<int>(std::ceil(points * scale - 1e-6)));
}

// The drawing is stretched by less than a pixel, so that it covers the pixels at its edges.
CGImageRef draw_for_density(CALayer layer, CGSize size, double scale) {
  scale = drawing_scale(scale, {size.width * kColumnsPerPixel, size.height});
  const int width = whole_pixels(size.width, scale);
  const int height = whole_pixels(size.height, scale);
  const int columns = width * kColumnsPerPixel;
  const Opacity opacity = opacity_of(layer);
  CGContextRef context =
      make_bitmap_context({static_cast<double>(columns), static_cast<double>(height)}, 1, opacity);
  cairo_scale(context->cairo(), columns / size.width, height / size.height);
  draw_into(context, layer);
  cairo_surface_flush(context->surface.get());
  CGImageRef image = make_image(scaled_copy(context->surface, width, height), opacity);
  CGContextRelease(context);
  return image;
}

}  // namespace

CGImageRef draw_contents(CALayer layer) {
  const LayerModel& model = layer_of(layer).model;
  const CGSize size = model.properties.bounds.size;
  const double density = screen_density();
  return density == 1 ? draw_for_device(layer, size, model.contents.scale)
                      : draw_for_density(layer, size, model.contents.scale * density);
}

}  // namespace host::quartzcore
