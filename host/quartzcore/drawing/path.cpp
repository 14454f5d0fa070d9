#include "host/quartzcore/drawing/path.h"

#include "host/quartzcore/pixels/surface.h"
#include "platform/CoreGraphics/CGAffineTransform.h"

namespace host::quartzcore {

void Path::move_to(CGPoint point) {
  elements_.push_back({Kind::Move, {point}});
  start_ = current_ = point;
}

void Path::line_to(CGPoint point) {
  elements_.push_back({Kind::Line, {point}});
  current_ = point;
}

void Path::curve_to(CGPoint control1, CGPoint control2, CGPoint end) {
  elements_.push_back({Kind::Curve, {control1, control2, end}});
  current_ = end;
}

void Path::close() {
  elements_.push_back({Kind::Close, {}});
  current_ = start_;
}

void Path::append(const Path& other, const CGAffineTransform& transform) {
  const auto moved = [&](CGPoint p) { return CGPointApplyAffineTransform(p, transform); };
  // A copy, because a path may be appended to itself.
  for (const Element& element : std::vector(other.elements_)) {
    const auto& points = element.points;
    switch (element.kind) {
      case Kind::Move:
        move_to(moved(points[0]));
        break;
      case Kind::Line:
        line_to(moved(points[0]));
        break;
      case Kind::Curve:
        curve_to(moved(points[0]), moved(points[1]), moved(points[2]));
        break;
      case Kind::Close:
        close();
        break;
    }
  }
}

void Path::add_to(cairo_t* drawing) const {
  for (const auto& [kind, points] : elements_) {
    switch (kind) {
      case Kind::Move:
        cairo_move_to(drawing, points[0].x, points[0].y);
        break;
      case Kind::Line:
        cairo_line_to(drawing, points[0].x, points[0].y);
        break;
      case Kind::Curve:
        cairo_curve_to(drawing, points[0].x, points[0].y, points[1].x, points[1].y, points[2].x,
                       points[2].y);
        break;
      case Kind::Close:
        cairo_close_path(drawing);
        break;
    }
  }
}

CGRect Path::bounding_box() const {
  cairo_t* drawing = scratch_drawing();
  cairo_new_path(drawing);
  add_to(drawing);
  double left = 0, top = 0, right = 0, bottom = 0;
  cairo_path_extents(drawing, &left, &top, &right, &bottom);
  return {left, top, right - left, bottom - top};
}

bool Path::contains(CGPoint point, bool even_odd) const {
  cairo_t* drawing = scratch_drawing();
  cairo_new_path(drawing);
  cairo_set_fill_rule(drawing, even_odd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
  add_to(drawing);
  return cairo_in_fill(drawing, point.x, point.y) != 0;
}

cairo_t* scratch_drawing() {
  static const Drawing drawing = draw_on(make_surface(1, 1));
  return drawing.get();
}

Path* path_of(CGPathRef path) {
  return path ? &objc::state_of<Path>(object_of(path)) : nullptr;
}

void export_path() {
  objc::ClassBuilder("CGPath", "NSObject").state<Path>().finish();
}

}  // namespace host::quartzcore
