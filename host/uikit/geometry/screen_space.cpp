#include "host/uikit/geometry/screen_space.h"

#include <algorithm>

#include "platform/UIKit/UIWindow.h"

namespace host::uikit {
namespace {

CGPoint anchor_in_bounds(CALayer layer) {
  const CGRect bounds = layer.bounds();
  const CGPoint anchor = layer.anchorPoint();
  return {bounds.origin.x + anchor.x * bounds.size.width,
          bounds.origin.y + anchor.y * bounds.size.height};
}

CGPoint to_superlayer(CALayer layer, CGPoint point) {
  const CGPoint anchor = anchor_in_bounds(layer);
  const CGAffineTransform t = layer.affineTransform();
  const CGPoint position = layer.position();
  const double x = point.x - anchor.x;
  const double y = point.y - anchor.y;
  return {t.a * x + t.c * y + t.tx + position.x, t.b * x + t.d * y + t.ty + position.y};
}

CGPoint from_superlayer(CALayer layer, CGPoint point) {
  const CGPoint anchor = anchor_in_bounds(layer);
  const CGAffineTransform t = layer.affineTransform();
  const CGPoint position = layer.position();
  const double x = point.x - position.x - t.tx;
  const double y = point.y - position.y - t.ty;
  const double determinant = t.a * t.d - t.b * t.c;
  // A view scaled to nothing has no inverse; every point maps to its anchor.
  if (determinant == 0) return anchor;
  return {(t.d * x - t.c * y) / determinant + anchor.x,
          (t.a * y - t.b * x) / determinant + anchor.y};
}

}  // namespace

CGPoint to_screen(UIView view, CGPoint point) {
  for (; view; view = view.superview())
    point = to_superlayer(view.layer(), point);
  return point;
}

CGPoint from_screen(UIView view, CGPoint point) {
  if (!view) return point;
  return from_superlayer(view.layer(), from_screen(view.superview(), point));
}

std::optional<CGPoint> centre_on_screen(objc::Object object) {
  if (!objc::cast<NSObject>(object).isKindOfClass(UIView::cls())) return std::nullopt;
  const auto view = objc::cast<UIView>(object);
  const bool is_window = view.isKindOfClass(UIWindow::cls());
  if (!is_window && !view.window()) return std::nullopt;
  return to_screen(view, view.bounds().centre());
}

CGPoint vector_from_screen(UIView view, CGPoint vector) {
  const CGPoint origin = from_screen(view, {0, 0});
  const CGPoint end = from_screen(view, vector);
  return {end.x - origin.x, end.y - origin.y};
}

CGPoint vector_to_screen(UIView view, CGPoint vector) {
  const CGPoint origin = to_screen(view, {0, 0});
  const CGPoint end = to_screen(view, vector);
  return {end.x - origin.x, end.y - origin.y};
}

CGRect convert_rect(UIView from, CGRect rect, UIView to) {
  const CGPoint corners[] = {rect.origin,
                             {rect.max_x(), rect.min_y()},
                             {rect.min_x(), rect.max_y()},
                             {rect.max_x(), rect.max_y()}};
  CGPoint least = from_screen(to, to_screen(from, corners[0]));
  CGPoint most = least;
  for (const CGPoint corner : corners) {
    const CGPoint converted = from_screen(to, to_screen(from, corner));
    least = {std::min(least.x, converted.x), std::min(least.y, converted.y)};
    most = {std::max(most.x, converted.x), std::max(most.y, converted.y)};
  }
  return {least, {most.x - least.x, most.y - least.y}};
}

}  // namespace host::uikit
