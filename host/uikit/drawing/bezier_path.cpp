#include "host/uikit/drawing/bezier_path.h"

#include "platform/UIKit/UIGraphics.h"

namespace host::uikit {
namespace {

UIBezierPath bezier_path(objc::Object cls) {
  const auto path = objc::send<UIBezierPath>(cls, "alloc"_sel);
  return path.init().autorelease();
}

UIBezierPath take_over(CGPathRef path) {
  const UIBezierPath made = UIBezierPath::bezierPath();
  made.setCGPath(path);
  CGPathRelease(path);
  return made;
}

UIBezierPath path_with_rect(objc::Object, CGRect rect) {
  return take_over(CGPathCreateWithRect(rect, nullptr));
}

UIBezierPath path_with_oval(objc::Object, CGRect rect) {
  return take_over(CGPathCreateWithEllipseInRect(rect, nullptr));
}

UIBezierPath path_with_rounded_rect(objc::Object, CGRect rect, CGFloat radius) {
  return take_over(CGPathCreateWithRoundedRect(rect, radius, radius, nullptr));
}

UIBezierPath path_with_arc(objc::Object, CGPoint center, CGFloat radius, CGFloat start, CGFloat end,
                           BOOL clockwise) {
  const UIBezierPath made = UIBezierPath::bezierPath();
  made.addArcWithCenter(center, radius, start, end, clockwise);
  return made;
}

UIBezierPath path_with_cg_path(objc::Object, CGPathRef path) {
  const UIBezierPath made = UIBezierPath::bezierPath();
  made.setCGPath(path);
  return made;
}

CGMutablePathRef copy_of(CGPathRef path, const CGAffineTransform* transform = nullptr) {
  const CGMutablePathRef copy = CGPathCreateMutable();
  if (path) CGPathAddPath(copy, transform, path);
  return copy;
}

}  // namespace

BezierPath::BezierPath(UIBezierPath owner) : Implementation(owner), path_(CGPathCreateMutable()) {}

BezierPath::~BezierPath() {
  CGPathRelease(path_);
}

void BezierPath::replace(CGMutablePathRef path) {
  CGPathRelease(path_);
  path_ = path;
  handed_out_ = false;
}

// A caller that was given the path, such as a shape layer, keeps it as it was at that time.
CGMutablePathRef BezierPath::changeable() {
  if (handed_out_) replace(copy_of(path_));
  return path_;
}

void BezierPath::move_to(CGPoint point) {
  CGPathMoveToPoint(changeable(), nullptr, point.x, point.y);
}

void BezierPath::line_to(CGPoint point) {
  CGPathAddLineToPoint(changeable(), nullptr, point.x, point.y);
}

void BezierPath::curve_to(CGPoint end, CGPoint control1, CGPoint control2) {
  CGPathAddCurveToPoint(changeable(), nullptr, control1.x, control1.y, control2.x, control2.y,
                        end.x, end.y);
}

void BezierPath::quad_curve_to(CGPoint end, CGPoint control) {
  CGPathAddQuadCurveToPoint(changeable(), nullptr, control.x, control.y, end.x, end.y);
}

void BezierPath::add_arc(CGPoint center, CGFloat radius, CGFloat start, CGFloat end,
                         BOOL clockwise) {
  // In UIKit, clockwise is as seen on the screen; in CoreGraphics, as seen with y pointing up.
  CGPathAddArc(changeable(), nullptr, center.x, center.y, radius, start, end, !clockwise);
}

void BezierPath::append(UIBezierPath path) {
  if (path) CGPathAddPath(changeable(), nullptr, path.CGPath());
}

void BezierPath::close() {
  CGPathCloseSubpath(changeable());
}

void BezierPath::remove_all_points() {
  replace(CGPathCreateMutable());
}

void BezierPath::apply_transform(CGAffineTransform transform) {
  replace(copy_of(path_, &transform));
}

BOOL BezierPath::is_empty() const {
  return CGPathIsEmpty(path_);
}

CGRect BezierPath::bounds() const {
  return CGPathGetPathBoundingBox(path_);
}

CGPoint BezierPath::current_point() const {
  return CGPathGetCurrentPoint(path_);
}

BOOL BezierPath::contains(CGPoint point) const {
  return CGPathContainsPoint(path_, nullptr, point, even_odd_);
}

CGPathRef BezierPath::cg_path() {
  handed_out_ = true;
  return path_;
}

void BezierPath::set_cg_path(CGPathRef path) {
  replace(copy_of(path));
}

objc::Object BezierPath::copy_with_zone(void*) const {
  const UIBezierPath copy = UIBezierPath::alloc().init();
  auto& state = objc::state_of<BezierPath>(copy);
  state.set_cg_path(path_);
  state.line_width_ = line_width_;
  state.line_cap_ = line_cap_;
  state.line_join_ = line_join_;
  state.even_odd_ = even_odd_;
  return copy;
}

void BezierPath::fill() {
  const CGContextRef context = UIGraphicsGetCurrentContext();
  if (!context) return;
  CGContextBeginPath(context);
  CGContextAddPath(context, path_);
  even_odd_ ? CGContextEOFillPath(context) : CGContextFillPath(context);
}

void BezierPath::stroke() {
  const CGContextRef context = UIGraphicsGetCurrentContext();
  if (!context) return;
  CGContextSaveGState(context);
  CGContextSetLineWidth(context, line_width_);
  CGContextSetLineCap(context, line_cap_);
  CGContextSetLineJoin(context, line_join_);
  CGContextBeginPath(context);
  CGContextAddPath(context, path_);
  CGContextStrokePath(context);
  CGContextRestoreGState(context);
}

void BezierPath::add_clip() {
  const CGContextRef context = UIGraphicsGetCurrentContext();
  if (!context) return;
  CGContextBeginPath(context);
  CGContextAddPath(context, path_);
  CGContextClip(context);
}

void export_bezier_path() {
  if (objc_getClass("UIBezierPath")) return;
  objc::ClassBuilder("UIBezierPath", "NSObject")
      .state<BezierPath>()
      .class_method<&bezier_path>("bezierPath")
      .class_method<&path_with_rect>("bezierPathWithRect:")
      .class_method<&path_with_oval>("bezierPathWithOvalInRect:")
      .class_method<&path_with_rounded_rect>("bezierPathWithRoundedRect:cornerRadius:")
      .class_method<&path_with_arc>("bezierPathWithArcCenter:radius:startAngle:endAngle:clockwise:")
      .class_method<&path_with_cg_path>("bezierPathWithCGPath:")
      .method<&BezierPath::move_to>("moveToPoint:")
      .method<&BezierPath::line_to>("addLineToPoint:")
      .method<&BezierPath::curve_to>("addCurveToPoint:controlPoint1:controlPoint2:")
      .method<&BezierPath::quad_curve_to>("addQuadCurveToPoint:controlPoint:")
      .method<&BezierPath::add_arc>("addArcWithCenter:radius:startAngle:endAngle:clockwise:")
      .method<&BezierPath::append>("appendPath:")
      .method<&BezierPath::close>("closePath")
      .method<&BezierPath::remove_all_points>("removeAllPoints")
      .method<&BezierPath::apply_transform>("applyTransform:")
      .method<&BezierPath::is_empty>("isEmpty")
      .method<&BezierPath::bounds>("bounds")
      .method<&BezierPath::current_point>("currentPoint")
      .method<&BezierPath::contains>("containsPoint:")
      .method<&BezierPath::cg_path>("CGPath")
      .method<&BezierPath::set_cg_path>("setCGPath:")
      .method<&BezierPath::copy_with_zone>("copyWithZone:")
      .method<&BezierPath::line_width>("lineWidth")
      .method<&BezierPath::set_line_width>("setLineWidth:")
      .method<&BezierPath::line_cap>("lineCapStyle")
      .method<&BezierPath::set_line_cap>("setLineCapStyle:")
      .method<&BezierPath::line_join>("lineJoinStyle")
      .method<&BezierPath::set_line_join>("setLineJoinStyle:")
      .method<&BezierPath::uses_even_odd>("usesEvenOddFillRule")
      .method<&BezierPath::set_uses_even_odd>("setUsesEvenOddFillRule:")
      .method<&BezierPath::fill>("fill")
      .method<&BezierPath::stroke>("stroke")
      .method<&BezierPath::add_clip>("addClip")
      .finish();
}

}  // namespace host::uikit
