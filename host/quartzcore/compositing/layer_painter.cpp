#include "host/quartzcore/compositing/layer_painter.h"

#include <numbers>

#include "host/quartzcore/layers/screen_density.h"
#include "host/quartzcore/pixels/pixel_blend.h"

namespace host::quartzcore {
namespace {

void use_layer_space(const Canvas& canvas, const CGAffineTransform& t) {
  const cairo_matrix_t matrix{t.a, t.b, t.c, t.d, t.tx - canvas.x, t.ty - canvas.y};
  cairo_set_matrix(canvas.drawing.get(), &matrix);
}

void use_pixels(const Canvas& canvas) {
  cairo_matrix_t matrix;
  cairo_matrix_init_translate(&matrix, -canvas.x, -canvas.y);
  cairo_set_matrix(canvas.drawing.get(), &matrix);
}

void add_rounded_rect(cairo_t* drawing, const CGRect& r, double radius) {
  radius = std::clamp(radius, 0.0, std::min(r.size.width, r.size.height) / 2);
  if (radius <= 0) {
    cairo_rectangle(drawing, r.min_x(), r.min_y(), r.size.width, r.size.height);
    return;
  }
  constexpr double kQuarter = std::numbers::pi / 2;
  cairo_new_sub_path(drawing);
  cairo_arc(drawing, r.max_x() - radius, r.min_y() + radius, radius, -kQuarter, 0);
  cairo_arc(drawing, r.max_x() - radius, r.max_y() - radius, radius, 0, kQuarter);
  cairo_arc(drawing, r.min_x() + radius, r.max_y() - radius, radius, kQuarter, 2 * kQuarter);
  cairo_arc(drawing, r.min_x() + radius, r.min_y() + radius, radius, 2 * kQuarter, 3 * kQuarter);
  cairo_close_path(drawing);
}

struct Span {
  int first = 0;
  int end = 0;
};

Span shown_span(double from, double to) {
  const int first = to_pixel(std::round(from));
  const int end = to_pixel(std::round(to));
  if (end > first || !(to > from)) return {first, end};
  const int middle = to_pixel(std::floor((from + to) / 2));
  return {middle, middle + 1};
}

/// Returns the nearest pixels. Where the screen has fewer pixels than the device, a hairline still
/// gets one.
PixelRect shown_pixels(const CGRect& rect) {
  if (screen_density() == 1) return nearest_pixels(rect);
  const Span across = shown_span(rect.min_x(), rect.max_x());
  const Span down = shown_span(rect.min_y(), rect.max_y());
  return from_edges(across.first, down.first, across.end, down.end);
}

/// True for what the layer has drawn for these pixels. The picture has whole pixels for any place
/// of the layer, so it may be larger by one.
bool is_drawn_for(const PixelRect& box, const RenderNode& node) {
  const int wider = node.image->width() - box.width;
  const int higher = node.image->height() - box.height;
  if (node.layer->model.contents.density == 1) return wider == 0 && higher == 0;
  return wider >= 0 && wider <= 1 && higher >= 0 && higher <= 1;
}

/// The pixels of upright bounds.
PixelRect bounds_box(const RenderNode& node) {
  return shown_pixels(CGRectApplyAffineTransform(node.properties.bounds, node.to_device));
}

/// Adds the bounds to the path. Upright bounds without rounded corners end at whole pixels, so that
/// hairlines are sharp and neighbours meet.
void add_bounds(const Canvas& canvas, const RenderNode& node) {
  cairo_t* drawing = canvas.drawing.get();
  const LayerProperties& p = node.properties;
  cairo_new_path(drawing);
  if (p.corner_radius <= 0 && is_upright(node.to_device)) {
    use_pixels(canvas);
    const PixelRect box = bounds_box(node);
    cairo_rectangle(drawing, box.x, box.y, box.width, box.height);
  } else {
    use_layer_space(canvas, node.to_device);
    add_rounded_rect(drawing, p.bounds, p.corner_radius);
  }
}

void paint_pattern(const Canvas& canvas, const RenderNode& node, const Pattern& pattern,
                   double opacity) {
  cairo_t* drawing = canvas.drawing.get();
  cairo_clip(drawing);
  use_layer_space(canvas, node.to_device);
  set_source(drawing, pattern);
  cairo_paint_with_alpha(drawing, opacity);
}

void paint_background(const Canvas& canvas, const RenderNode& node, double opacity) {
  Rgba color = node.properties.background_color;
  if (color.alpha <= 0) return;
  color.alpha *= opacity;
  cairo_t* drawing = canvas.drawing.get();
  cairo_save(drawing);
  add_bounds(canvas, node);
  if (const Pattern* pattern = shown_pattern(node)) {
    paint_pattern(canvas, node, *pattern, opacity);
  } else {
    set_source(drawing, color);
    cairo_fill(drawing);
  }
  cairo_restore(drawing);
}

void paint_transformed_image(const Canvas& canvas, const RenderNode& node, const Image& image,
                             const CGRect& place, double opacity) {
  cairo_t* drawing = canvas.drawing.get();
  const Surface pixels = image.surface_for_frame();
  if (!pixels) return;
  cairo_save(drawing);
  if (node.layer->model.masks_to_bounds) clip_to_layer(canvas, node);
  use_layer_space(canvas, node.to_device);
  cairo_rectangle(drawing, place.min_x(), place.min_y(), place.size.width, place.size.height);
  cairo_translate(drawing, place.min_x(), place.min_y());
  cairo_scale(drawing, place.size.width / image.width(), place.size.height / image.height());
  cairo_set_source_surface(drawing, pixels.get(), 0, 0);
  cairo_pattern_set_extend(cairo_get_source(drawing), CAIRO_EXTEND_PAD);
  cairo_pattern_set_filter(cairo_get_source(drawing), CAIRO_FILTER_BILINEAR);
  if (opacity >= 1) {
    cairo_fill(drawing);
  } else {
    cairo_clip(drawing);
    cairo_paint_with_alpha(drawing, opacity);
  }
  cairo_restore(drawing);
}

/// Paints as much of the surface as fits into `place`, without cairo: nothing but whole pixels cuts
/// a plain layer.
void paint_plain(const Canvas& canvas, const RenderNode& node, const Surface& pixels,
                 const PixelRect& place, const PixelRect& damage) {
  PixelRect part = intersection(intersection(place, node.own), damage);
  if (node.layer->model.masks_to_bounds) part = intersection(part, bounds_box(node));
  part.x -= canvas.x;
  part.y -= canvas.y;
  const int x = place.x - canvas.x;
  const int y = place.y - canvas.y;
  if (node.image->is_opaque())
    blend_opaque(pixels, canvas.surface, x, y, part, 1);
  else
    blend_over(pixels, canvas.surface, x, y, part);
}

void paint_clipped(const Canvas& canvas, const RenderNode& node, const Surface& pixels,
                   const PixelRect& place, double opacity) {
  cairo_save(canvas.drawing.get());
  // Contents may extend beyond the bounds, unless the layer clips.
  if (node.layer->model.masks_to_bounds) clip_to_layer(canvas, node);
  const Opacity kind = node.image->is_opaque() ? Opacity::Opaque : Opacity::Translucent;
  paint_surface(canvas, pixels, place, opacity, kind);
  cairo_restore(canvas.drawing.get());
}

void paint_image(const Canvas& canvas, const RenderNode& node, const PixelRect& damage,
                 double opacity, ImageCache& images) {
  const Image& image = *node.image;
  const CGRect place = place_of_image(node);
  if (!(place.size.width > 0) || !(place.size.height > 0)) return;
  const PixelRect box = nearest_pixels(CGRectApplyAffineTransform(place, node.to_device));
  const bool own_size = is_drawn_for(box, node);
  if (!is_upright(node.to_device) || box.is_empty() || (node.is_scaling && !own_size))
    return paint_transformed_image(canvas, node, image, place, opacity);
  const Surface pixels = images.scaled(image, own_size ? image.width() : box.width,
                                       own_size ? image.height() : box.height);
  if (!pixels) return;
  if (node.is_plain && opacity >= 1) return paint_plain(canvas, node, pixels, box, damage);
  paint_clipped(canvas, node, pixels, box, opacity);
}

void paint_drawing(const Canvas& canvas, const RenderNode& node, double opacity) {
  cairo_t* drawing = canvas.drawing.get();
  cairo_save(drawing);
  if (node.layer->model.masks_to_bounds) clip_to_layer(canvas, node);
  if (opacity < 1) cairo_push_group(drawing);
  use_layer_space(canvas, node.to_device);
  node.layer->drawing->paint(drawing, node.properties);
  if (opacity < 1) {
    cairo_pop_group_to_source(drawing);
    cairo_paint_with_alpha(drawing, opacity);
  }
  cairo_restore(drawing);
}

}  // namespace

Canvas make_canvas(Surface surface, int x, int y) {
  Drawing drawing = draw_on(surface);
  return {std::move(surface), std::move(drawing), x, y};
}

void clip_to_layer(const Canvas& canvas, const RenderNode& node) {
  add_bounds(canvas, node);
  cairo_clip(canvas.drawing.get());
}

void paint_layer(const Canvas& canvas, const RenderNode& node, const PixelRect& damage,
                 double opacity, ImageCache& images) {
  if (!node.hides_background) paint_background(canvas, node, opacity);
  if (node.image) paint_image(canvas, node, damage, opacity, images);
  if (node.layer->drawing) paint_drawing(canvas, node, opacity);
}

void paint_border(const Canvas& canvas, const RenderNode& node, double opacity) {
  const LayerProperties& p = node.properties;
  if (p.border_width <= 0 || p.border_color.alpha <= 0) return;
  cairo_t* drawing = canvas.drawing.get();
  Rgba color = p.border_color;
  color.alpha *= opacity;
  cairo_save(drawing);
  cairo_new_path(drawing);
  use_layer_space(canvas, node.to_device);
  const double half = p.border_width / 2;
  add_rounded_rect(drawing, CGRectInset(p.bounds, half, half),
                   p.corner_radius > 0 ? std::max(0.0, p.corner_radius - half) : 0);
  cairo_set_line_width(drawing, p.border_width);
  cairo_set_line_join(drawing, CAIRO_LINE_JOIN_MITER);
  cairo_set_line_cap(drawing, CAIRO_LINE_CAP_BUTT);
  set_source(drawing, color);
  cairo_stroke(drawing);
  cairo_restore(drawing);
}

void paint_surface(const Canvas& canvas, const Surface& surface, int x, int y, double opacity,
                   Opacity kind) {
  paint_surface(canvas, surface, {x, y, width_of(surface), height_of(surface)}, opacity, kind);
}

void paint_surface(const Canvas& canvas, const Surface& surface, const PixelRect& place,
                   double opacity, Opacity kind) {
  cairo_t* drawing = canvas.drawing.get();
  use_pixels(canvas);
  cairo_set_source_surface(drawing, surface.get(), place.x, place.y);
  cairo_pattern_set_filter(cairo_get_source(drawing), CAIRO_FILTER_NEAREST);
  cairo_new_path(drawing);
  cairo_rectangle(drawing, place.x, place.y, place.width, place.height);
  if (opacity < 1) {
    cairo_save(drawing);
    cairo_clip(drawing);
    cairo_paint_with_alpha(drawing, opacity);
    cairo_restore(drawing);
    return;
  }
  if (kind == Opacity::Opaque) cairo_set_operator(drawing, CAIRO_OPERATOR_SOURCE);
  cairo_fill(drawing);
  cairo_set_operator(drawing, CAIRO_OPERATOR_OVER);
}

}  // namespace host::quartzcore
