#include "host/quartzcore/drawing/context.h"
#include "host/quartzcore/drawing/path.h"
#include "host/runtime/exported.h"

// The platform's C interface to drawing. On a null context every call is a no-op, as on the
// platform.

using namespace host::quartzcore;

namespace {

cairo_operator_t operator_for(CGBlendMode mode) {
  switch (mode) {
    case kCGBlendModeNormal:
      return CAIRO_OPERATOR_OVER;
    case kCGBlendModeMultiply:
      return CAIRO_OPERATOR_MULTIPLY;
    case kCGBlendModeScreen:
      return CAIRO_OPERATOR_SCREEN;
    case kCGBlendModeOverlay:
      return CAIRO_OPERATOR_OVERLAY;
    case kCGBlendModeClear:
      return CAIRO_OPERATOR_CLEAR;
    case kCGBlendModeCopy:
      return CAIRO_OPERATOR_SOURCE;
    case kCGBlendModeSourceIn:
      return CAIRO_OPERATOR_IN;
    case kCGBlendModeSourceAtop:
      return CAIRO_OPERATOR_ATOP;
    case kCGBlendModeDestinationIn:
      return CAIRO_OPERATOR_DEST_IN;
  }
  return CAIRO_OPERATOR_OVER;
}

void use(CGContextRef context, Rgba color) {
  color.alpha *= context->state().alpha;
  set_source(context->cairo(), color);
}

void add_ellipse(cairo_t* drawing, CGRect rect) {
  CGPathRef ellipse = CGPathCreateWithEllipseInRect(rect, nullptr);
  path_of(ellipse)->add_to(drawing);
  CGPathRelease(ellipse);
}

void fill_path(CGContextRef context, cairo_fill_rule_t rule) {
  cairo_t* const drawing = context->cairo();
  const CGContext::State& state = context->state();
  cairo_set_fill_rule(drawing, rule);
  if (!state.fill_pattern) {
    use(context, state.fill);
    cairo_fill(drawing);
    return;
  }
  cairo_save(drawing);
  cairo_clip(drawing);
  set_source(drawing, state.fill_pattern);
  cairo_paint_with_alpha(drawing, state.alpha);
  cairo_restore(drawing);
}

}  // namespace

SONAVUE_EXPORTED CGContextRef CGContextRetain(CGContextRef context) {
  if (context) ++context->references;
  return context;
}
SONAVUE_EXPORTED void CGContextRelease(CGContextRef context) {
  if (context && --context->references == 0) delete context;
}

SONAVUE_EXPORTED void CGContextSaveGState(CGContextRef context) {
  if (!context) return;
  cairo_save(context->cairo());
  context->states.push_back(context->state());
}
SONAVUE_EXPORTED void CGContextRestoreGState(CGContextRef context) {
  if (!context || context->states.size() < 2) return;
  cairo_restore(context->cairo());
  context->states.pop_back();
}
SONAVUE_EXPORTED void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty) {
  if (context) cairo_translate(context->cairo(), tx, ty);
}
SONAVUE_EXPORTED void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy) {
  // Cairo's matrix must stay invertible; a drawing scaled to 0 would be invisible anyway.
  if (context && sx != 0 && sy != 0) cairo_scale(context->cairo(), sx, sy);
}
SONAVUE_EXPORTED void CGContextRotateCTM(CGContextRef context, CGFloat angle) {
  if (context) cairo_rotate(context->cairo(), angle);
}
SONAVUE_EXPORTED void CGContextConcatCTM(CGContextRef context, CGAffineTransform t) {
  if (!context || t.a * t.d == t.b * t.c) return;
  const cairo_matrix_t matrix{t.a, t.b, t.c, t.d, t.tx, t.ty};
  cairo_transform(context->cairo(), &matrix);
}
SONAVUE_EXPORTED CGAffineTransform CGContextGetCTM(CGContextRef context) {
  if (!context) return {};
  cairo_matrix_t m;
  cairo_get_matrix(context->cairo(), &m);
  return {m.xx, m.yx, m.xy, m.yy, m.x0, m.y0};
}

SONAVUE_EXPORTED void CGContextSetAlpha(CGContextRef context, CGFloat alpha) {
  if (context) context->state().alpha = alpha;
}
SONAVUE_EXPORTED void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode) {
  if (context) cairo_set_operator(context->cairo(), operator_for(mode));
}
SONAVUE_EXPORTED void CGContextSetInterpolationQuality(CGContextRef context,
                                                       CGInterpolationQuality quality) {
  if (context) context->state().interpolation = quality;
}
SONAVUE_EXPORTED void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color) {
  if (!context) return;
  context->state().fill = rgba_of(color);
  context->state().fill_pattern = pattern_of(color);
}
SONAVUE_EXPORTED void CGContextSetStrokeColorWithColor(CGContextRef context, CGColorRef color) {
  if (context) context->state().stroke = rgba_of(color);
}
SONAVUE_EXPORTED void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green,
                                               CGFloat blue, CGFloat alpha) {
  if (!context) return;
  context->state().fill = {red, green, blue, alpha};
  context->state().fill_pattern = {};
}
SONAVUE_EXPORTED void CGContextSetRGBStrokeColor(CGContextRef context, CGFloat red, CGFloat green,
                                                 CGFloat blue, CGFloat alpha) {
  if (context) context->state().stroke = {red, green, blue, alpha};
}
SONAVUE_EXPORTED void CGContextSetLineWidth(CGContextRef context, CGFloat width) {
  if (context) cairo_set_line_width(context->cairo(), width);
}
SONAVUE_EXPORTED void CGContextSetLineCap(CGContextRef context, CGLineCap cap) {
  if (context) cairo_set_line_cap(context->cairo(), static_cast<cairo_line_cap_t>(cap));
}
SONAVUE_EXPORTED void CGContextSetLineJoin(CGContextRef context, CGLineJoin join) {
  if (context) cairo_set_line_join(context->cairo(), static_cast<cairo_line_join_t>(join));
}

SONAVUE_EXPORTED void CGContextBeginPath(CGContextRef context) {
  if (context) cairo_new_path(context->cairo());
}
SONAVUE_EXPORTED void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y) {
  if (context) cairo_move_to(context->cairo(), x, y);
}
SONAVUE_EXPORTED void CGContextAddLineToPoint(CGContextRef context, CGFloat x, CGFloat y) {
  if (context) cairo_line_to(context->cairo(), x, y);
}
SONAVUE_EXPORTED void CGContextAddRect(CGContextRef context, CGRect r) {
  if (context) cairo_rectangle(context->cairo(), r.min_x(), r.min_y(), r.size.width, r.size.height);
}
SONAVUE_EXPORTED void CGContextAddEllipseInRect(CGContextRef context, CGRect rect) {
  if (context) add_ellipse(context->cairo(), rect);
}
SONAVUE_EXPORTED void CGContextAddPath(CGContextRef context, CGPathRef path) {
  if (context && path) path_of(path)->add_to(context->cairo());
}
SONAVUE_EXPORTED void CGContextClosePath(CGContextRef context) {
  if (context) cairo_close_path(context->cairo());
}
SONAVUE_EXPORTED void CGContextFillPath(CGContextRef context) {
  if (context) fill_path(context, CAIRO_FILL_RULE_WINDING);
}
SONAVUE_EXPORTED void CGContextEOFillPath(CGContextRef context) {
  if (context) fill_path(context, CAIRO_FILL_RULE_EVEN_ODD);
}
SONAVUE_EXPORTED void CGContextStrokePath(CGContextRef context) {
  if (!context) return;
  use(context, context->state().stroke);
  cairo_stroke(context->cairo());
}
SONAVUE_EXPORTED void CGContextClip(CGContextRef context) {
  if (context) cairo_clip(context->cairo());
}
SONAVUE_EXPORTED void CGContextClipToRect(CGContextRef context, CGRect rect) {
  CGContextBeginPath(context);
  CGContextAddRect(context, rect);
  CGContextClip(context);
}

SONAVUE_EXPORTED void CGContextFillRect(CGContextRef context, CGRect rect) {
  CGContextBeginPath(context);
  CGContextAddRect(context, rect);
  CGContextFillPath(context);
}
SONAVUE_EXPORTED void CGContextStrokeRect(CGContextRef context, CGRect rect) {
  CGContextBeginPath(context);
  CGContextAddRect(context, rect);
  CGContextStrokePath(context);
}
SONAVUE_EXPORTED void CGContextClearRect(CGContextRef context, CGRect rect) {
  if (!context) return;
  cairo_save(context->cairo());
  cairo_set_operator(context->cairo(), CAIRO_OPERATOR_CLEAR);
  CGContextFillRect(context, rect);
  cairo_restore(context->cairo());
}
SONAVUE_EXPORTED void CGContextFillEllipseInRect(CGContextRef context, CGRect rect) {
  CGContextBeginPath(context);
  CGContextAddEllipseInRect(context, rect);
  CGContextFillPath(context);
}
SONAVUE_EXPORTED void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image) {
  if (context && image)
    draw_image(context->cairo(), *image_of(image), rect, context->state().alpha);
}

SONAVUE_EXPORTED void* CGBitmapContextGetData(CGContextRef context) {
  if (!context) return nullptr;
  cairo_surface_flush(context->surface.get());
  return cairo_image_surface_get_data(context->surface.get());
}
SONAVUE_EXPORTED std::size_t CGBitmapContextGetWidth(CGContextRef context) {
  return context ? static_cast<std::size_t>(width_of(context->surface)) : 0;
}
SONAVUE_EXPORTED std::size_t CGBitmapContextGetHeight(CGContextRef context) {
  return context ? static_cast<std::size_t>(height_of(context->surface)) : 0;
}
SONAVUE_EXPORTED std::size_t CGBitmapContextGetBytesPerRow(CGContextRef context) {
  if (!context) return 0;
  return static_cast<std::size_t>(cairo_image_surface_get_stride(context->surface.get()));
}
SONAVUE_EXPORTED CGImageRef CGBitmapContextCreateImage(CGContextRef context) {
  if (!context) return nullptr;
  const Surface copy = make_surface(width_of(context->surface), height_of(context->surface));
  const Drawing drawing = draw_on(copy);
  cairo_set_operator(drawing.get(), CAIRO_OPERATOR_SOURCE);
  cairo_set_source_surface(drawing.get(), context->surface.get(), 0, 0);
  cairo_paint(drawing.get());
  return make_image(copy, context->opacity);
}
