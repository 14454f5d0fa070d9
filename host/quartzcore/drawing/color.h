#pragma once

#include <cairo.h>

#include "host/quartzcore/drawing/image.h"
#include "host/quartzcore/values/rgba.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/CoreGraphics/CGColor.h"
#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

/// A picture that is tiled to fill an area, at `scale` of its pixels per point.
struct Pattern {
  objc::Ref<CGImageObject> image;
  double scale = 1;

  explicit operator bool() const { return static_cast<bool>(image); }
  friend bool operator==(const Pattern& left, const Pattern& right) {
    return left.image.get() == right.image.get() && left.scale == right.scale;
  }
};

struct CGColorObject : objc::Bound<CGColorObject, "CGColor", NSObject> {};

/// What a CGColorRef points to: an immutable colour, which is also a runtime object.
class Color : public objc::Implementation<Color, CGColorObject> {
 public:
  explicit Color(CGColorObject owner) : Implementation(owner) {}

  /// For a pattern: its mean colour, where a pattern cannot be used.
  Rgba rgba;
  Pattern pattern;

  BOOL is_equal(objc::Object other) const;
  NSUInteger hash() const;
};

/// Returns a new colour; the caller owns it (+1).
CGColorRef make_color(const Rgba& rgba);
/// Returns a new colour (+1) that tiles the image, at `scale` of its pixels per point. Null when
/// `image` is not an image.
CGColorRef make_pattern_color(CGImageRef image, double scale);
/// Returns an empty pattern when the colour is plain or null.
Pattern pattern_of(CGColorRef color);
/// Returns the components; transparent black for null.
Rgba rgba_of(CGColorRef color);
bool is_color(objc::Object object);
inline objc::Object object_of(CGColorRef color) {
  return objc::Object(reinterpret_cast<objc::Id>(color));
}

/// A retained colour, or none.
class KeptColor {
 public:
  KeptColor() = default;
  explicit KeptColor(const Rgba& rgba);

  CGColorRef get() const { return reinterpret_cast<CGColorRef>(object_.get().id()); }
  void reset(CGColorRef color) { object_.reset(objc::cast<CGColorObject>(object_of(color))); }

 private:
  objc::Ref<CGColorObject> object_;
};

inline void set_source(cairo_t* drawing, const Rgba& rgba) {
  cairo_set_source_rgba(drawing, rgba.red, rgba.green, rgba.blue, rgba.alpha);
}

/// Tiles start at the origin of the drawing's user space.
void set_source(cairo_t* drawing, const Pattern& pattern);

void export_color();

}  // namespace host::quartzcore
