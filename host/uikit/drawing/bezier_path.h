#pragma once

#include "objc/class_builder.h"
#include "platform/UIKit/UIBezierPath.h"

namespace host::uikit {

class BezierPath : public objc::Implementation<BezierPath, UIBezierPath> {
 public:
  explicit BezierPath(UIBezierPath owner);
  ~BezierPath();

  void move_to(CGPoint point);
  void line_to(CGPoint point);
  void curve_to(CGPoint end, CGPoint control1, CGPoint control2);
  void quad_curve_to(CGPoint end, CGPoint control);
  void add_arc(CGPoint center, CGFloat radius, CGFloat start, CGFloat end, BOOL clockwise);
  void append(UIBezierPath path);
  void close();
  void remove_all_points();
  void apply_transform(CGAffineTransform transform);

  BOOL is_empty() const;
  CGRect bounds() const;
  CGPoint current_point() const;
  BOOL contains(CGPoint point) const;
  CGPathRef cg_path();
  void set_cg_path(CGPathRef path);
  objc::Object copy_with_zone(void*) const;

  CGFloat line_width() const { return line_width_; }
  void set_line_width(CGFloat width) { line_width_ = width; }
  CGLineCap line_cap() const { return line_cap_; }
  void set_line_cap(CGLineCap cap) { line_cap_ = cap; }
  CGLineJoin line_join() const { return line_join_; }
  void set_line_join(CGLineJoin join) { line_join_ = join; }
  BOOL uses_even_odd() const { return even_odd_; }
  void set_uses_even_odd(BOOL uses) { even_odd_ = uses; }

  void fill();
  void stroke();
  void add_clip();

 private:
  CGMutablePathRef changeable();
  void replace(CGMutablePathRef path);

  CGMutablePathRef path_;
  bool handed_out_ = false;
  CGFloat line_width_ = 1;
  CGLineCap line_cap_ = kCGLineCapButt;
  CGLineJoin line_join_ = kCGLineJoinMiter;
  BOOL even_odd_ = NO;
};

void export_bezier_path();

}  // namespace host::uikit
