#pragma once

#include <cairo.h>

#include <vector>

#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGPath.h"
#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

struct CGPathObject : objc::Bound<CGPathObject, "CGPath", NSObject> {};

/// What a CGPathRef points to: a list of moves, lines, curves and closings. Also a runtime object.
class Path : public objc::Implementation<Path, CGPathObject> {
 public:
  explicit Path(CGPathObject owner) : Implementation(owner) {}

  void move_to(CGPoint point);
  void line_to(CGPoint point);
  void curve_to(CGPoint control1, CGPoint control2, CGPoint end);
  void close();
  void append(const Path& other, const CGAffineTransform& transform);

  bool is_empty() const { return elements_.empty(); }
  CGPoint current_point() const { return current_; }
  /// Adds the path to Cairo's current one, in the drawing's user space.
  void add_to(cairo_t* drawing) const;
  CGRect bounding_box() const;
  bool contains(CGPoint point, bool even_odd) const;

 private:
  enum class Kind : unsigned char { Move, Line, Curve, Close };
  struct Element {
    Kind kind;
    CGPoint points[3];
  };

  std::vector<Element> elements_;
  CGPoint start_;
  CGPoint current_;
};

/// Returns a Cairo drawing on a single pixel, used for queries about paths.
cairo_t* scratch_drawing();

inline objc::Object object_of(CGPathRef path) {
  return objc::Object(reinterpret_cast<objc::Id>(const_cast<CGPath*>(path)));
}
Path* path_of(CGPathRef path);

void export_path();

}  // namespace host::quartzcore
