#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/quartzcore/drawing/path.h"
#include "host/runtime/exported.h"
#include "platform/CoreGraphics/CGAffineTransform.h"

// The platform's C interface to paths.

using host::quartzcore::CGPathObject;
using host::quartzcore::object_of;
using host::quartzcore::Path;
using host::quartzcore::path_of;

namespace {

// With control points at this share of the radius, a quarter's curve follows the circle within
// 0.03 %.
constexpr double kQuarterControl = 0.5522847498307936;

CGPoint moved(const CGAffineTransform* transform, CGPoint point) {
  return transform ? CGPointApplyAffineTransform(point, *transform) : point;
}

CGAffineTransform value_of(const CGAffineTransform* transform) {
  return transform ? *transform : CGAffineTransform{};
}

/// Adds a rectangle whose corners are quarters of an ellipse with the given radii.
void add_rounded_rect(Path& path, const CGAffineTransform* t, CGRect r, double rx, double ry) {
  rx = std::clamp(rx, 0.0, r.size.width / 2);
  ry = std::clamp(ry, 0.0, r.size.height / 2);
  const double cx = rx * (1 - kQuarterControl);
  const double cy = ry * (1 - kQuarterControl);
  const double left = r.min_x(), top = r.min_y(), right = r.max_x(), bottom = r.max_y();
  path.move_to(moved(t, {left + rx, top}));
  path.line_to(moved(t, {right - rx, top}));
  path.curve_to(moved(t, {right - cx, top}), moved(t, {right, top + cy}),
                moved(t, {right, top + ry}));
  path.line_to(moved(t, {right, bottom - ry}));
  path.curve_to(moved(t, {right, bottom - cy}), moved(t, {right - cx, bottom}),
                moved(t, {right - rx, bottom}));
  path.line_to(moved(t, {left + rx, bottom}));
  path.curve_to(moved(t, {left + cx, bottom}), moved(t, {left, bottom - cy}),
                moved(t, {left, bottom - ry}));
  path.line_to(moved(t, {left, top + ry}));
  path.curve_to(moved(t, {left, top + cy}), moved(t, {left + cx, top}), moved(t, {left + rx, top}));
  path.close();
}

double sweep_of(double start, double end, bool clockwise) {
  constexpr double kTurn = 2 * std::numbers::pi;
  double sweep = clockwise ? start - end : end - start;
  if (sweep < 0) sweep = std::fmod(sweep, kTurn) + kTurn;
  sweep = std::min(sweep, kTurn);
  return clockwise ? -sweep : sweep;
}

}  // namespace

SONAVUE_EXPORTED CGMutablePathRef CGPathCreateMutable() {
  return reinterpret_cast<CGMutablePathRef>(CGPathObject::alloc().init().id());
}
SONAVUE_EXPORTED CGPathRef CGPathCreateCopyByTransformingPath(CGPathRef path,
                                                              const CGAffineTransform* transform) {
  if (!path) return nullptr;
  CGMutablePathRef copy = CGPathCreateMutable();
  path_of(copy)->append(*path_of(path), value_of(transform));
  return copy;
}
SONAVUE_EXPORTED CGPathRef CGPathCreateCopy(CGPathRef path) {
  return CGPathCreateCopyByTransformingPath(path, nullptr);
}
SONAVUE_EXPORTED CGPathRef CGPathCreateWithRect(CGRect rect, const CGAffineTransform* transform) {
  CGMutablePathRef path = CGPathCreateMutable();
  CGPathAddRect(path, transform, rect);
  return path;
}
SONAVUE_EXPORTED CGPathRef CGPathCreateWithEllipseInRect(CGRect rect,
                                                         const CGAffineTransform* transform) {
  CGMutablePathRef path = CGPathCreateMutable();
  CGPathAddEllipseInRect(path, transform, rect);
  return path;
}
SONAVUE_EXPORTED CGPathRef CGPathCreateWithRoundedRect(CGRect rect, CGFloat corner_width,
                                                       CGFloat corner_height,
                                                       const CGAffineTransform* transform) {
  CGMutablePathRef path = CGPathCreateMutable();
  add_rounded_rect(*path_of(path), transform, rect, corner_width, corner_height);
  return path;
}
SONAVUE_EXPORTED CGPathRef CGPathRetain(CGPathRef path) {
  objc::send<objc::Id>(object_of(path), "retain"_sel);
  return path;
}
SONAVUE_EXPORTED void CGPathRelease(CGPathRef path) {
  objc::send<>(object_of(path), "release"_sel);
}

SONAVUE_EXPORTED void CGPathMoveToPoint(CGMutablePathRef path, const CGAffineTransform* transform,
                                        CGFloat x, CGFloat y) {
  if (path) path_of(path)->move_to(moved(transform, {x, y}));
}
SONAVUE_EXPORTED void CGPathAddLineToPoint(CGMutablePathRef path,
                                           const CGAffineTransform* transform, CGFloat x,
                                           CGFloat y) {
  if (path) path_of(path)->line_to(moved(transform, {x, y}));
}
SONAVUE_EXPORTED void CGPathAddCurveToPoint(CGMutablePathRef path,
                                            const CGAffineTransform* transform, CGFloat cp1x,
                                            CGFloat cp1y, CGFloat cp2x, CGFloat cp2y, CGFloat x,
                                            CGFloat y) {
  if (!path) return;
  path_of(path)->curve_to(moved(transform, {cp1x, cp1y}), moved(transform, {cp2x, cp2y}),
                          moved(transform, {x, y}));
}
SONAVUE_EXPORTED void CGPathAddQuadCurveToPoint(CGMutablePathRef path,
                                                const CGAffineTransform* transform, CGFloat cpx,
                                                CGFloat cpy, CGFloat x, CGFloat y) {
  if (!path) return;
  const CGPoint start = path_of(path)->current_point();
  const CGPoint control = moved(transform, {cpx, cpy});
  const CGPoint end = moved(transform, {x, y});
  const auto towards_control = [&](CGPoint from) {
    return CGPoint{from.x + (control.x - from.x) * 2 / 3, from.y + (control.y - from.y) * 2 / 3};
  };
  path_of(path)->curve_to(towards_control(start), towards_control(end), end);
}
SONAVUE_EXPORTED void CGPathAddRect(CGMutablePathRef path, const CGAffineTransform* transform,
                                    CGRect rect) {
  if (!path) return;
  Path& to = *path_of(path);
  to.move_to(moved(transform, {rect.min_x(), rect.min_y()}));
  to.line_to(moved(transform, {rect.max_x(), rect.min_y()}));
  to.line_to(moved(transform, {rect.max_x(), rect.max_y()}));
  to.line_to(moved(transform, {rect.min_x(), rect.max_y()}));
  to.close();
}
SONAVUE_EXPORTED void CGPathAddEllipseInRect(CGMutablePathRef path,
                                             const CGAffineTransform* transform, CGRect rect) {
  if (path)
    add_rounded_rect(*path_of(path), transform, rect, rect.size.width / 2, rect.size.height / 2);
}

SONAVUE_EXPORTED void CGPathAddArc(CGMutablePathRef path, const CGAffineTransform* transform,
                                   CGFloat x, CGFloat y, CGFloat radius, CGFloat start_angle,
                                   CGFloat end_angle, bool clockwise) {
  if (!path) return;
  Path& to = *path_of(path);
  const double sweep = sweep_of(start_angle, end_angle, clockwise);
  const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / 1.5708)));
  const double step = sweep / pieces;
  const double reach = 4.0 / 3.0 * std::tan(step / 4) * radius;
  const auto at = [&](double angle) {
    return CGPoint{x + radius * std::cos(angle), y + radius * std::sin(angle)};
  };
  const CGPoint first = moved(transform, at(start_angle));
  to.is_empty() ? to.move_to(first) : to.line_to(first);
  for (int i = 0; i < pieces; ++i) {
    const double from = start_angle + step * i;
    const double until = from + step;
    const CGPoint a = at(from);
    const CGPoint b = at(until);
    to.curve_to(moved(transform, {a.x - reach * std::sin(from), a.y + reach * std::cos(from)}),
                moved(transform, {b.x + reach * std::sin(until), b.y - reach * std::cos(until)}),
                moved(transform, b));
  }
}
SONAVUE_EXPORTED void CGPathAddPath(CGMutablePathRef path, const CGAffineTransform* transform,
                                    CGPathRef other) {
  if (path && other) path_of(path)->append(*path_of(other), value_of(transform));
}
SONAVUE_EXPORTED void CGPathCloseSubpath(CGMutablePathRef path) {
  if (path) path_of(path)->close();
}

SONAVUE_EXPORTED bool CGPathIsEmpty(CGPathRef path) {
  return !path || path_of(path)->is_empty();
}
SONAVUE_EXPORTED CGPoint CGPathGetCurrentPoint(CGPathRef path) {
  return path ? path_of(path)->current_point() : CGPoint{};
}
SONAVUE_EXPORTED CGRect CGPathGetPathBoundingBox(CGPathRef path) {
  return path ? path_of(path)->bounding_box() : CGRect{};
}
SONAVUE_EXPORTED CGRect CGPathGetBoundingBox(CGPathRef path) {
  return CGPathGetPathBoundingBox(path);
}
SONAVUE_EXPORTED bool CGPathContainsPoint(CGPathRef path, const CGAffineTransform* transform,
                                          CGPoint point, bool even_odd) {
  if (!path) return false;
  const CGPoint asked =
      transform ? CGPointApplyAffineTransform(point, CGAffineTransformInvert(*transform)) : point;
  return path_of(path)->contains(asked, even_odd);
}
