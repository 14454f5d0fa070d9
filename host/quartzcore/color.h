#pragma once

#include <cairo.h>

#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGColor.h"
#include "platform/Foundation/NSObject.h"

namespace host::quartzcore {

/// Components from 0 to 1, not premultiplied.
struct Rgba {
  double red = 0, green = 0, blue = 0, alpha = 0;
  friend constexpr bool operator==(const Rgba&, const Rgba&) = default;
};

struct CGColorObject : objc::Bound<CGColorObject, "CGColor", NSObject> {};

/// What a CGColorRef points to: an immutable colour that is an object of the runtime.
class Color : public objc::Implementation<Color, CGColorObject> {
 public:
  explicit Color(CGColorObject owner) : Implementation(owner) {}

  Rgba rgba;

  BOOL is_equal(objc::Object other) const;
  NSUInteger hash() const;
};

/// A new colour (+1).
CGColorRef make_color(const Rgba& rgba);
/// The components; of null, clear black.
Rgba rgba_of(CGColorRef color);
bool is_color(objc::Object object);
inline objc::Object object_of(CGColorRef color) {
  return objc::Object(reinterpret_cast<objc::Id>(color));
}

inline void set_source(cairo_t* drawing, const Rgba& rgba) {
  cairo_set_source_rgba(drawing, rgba.red, rgba.green, rgba.blue, rgba.alpha);
}

void export_color();

}  // namespace host::quartzcore
