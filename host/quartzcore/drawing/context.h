#pragma once

#include <vector>

#include "host/quartzcore/drawing/color.h"
#include "host/quartzcore/drawing/image.h"
#include "host/quartzcore/pixels/surface.h"
#include "platform/CoreGraphics/CGContext.h"

/// What a CGContextRef points to: a Cairo drawing whose user space is in points from the top left.
/// It has separate fill and stroke colours, whereas Cairo has a single source. References are
/// counted by hand.
struct CGContext {
  struct State {
    host::quartzcore::Rgba fill{0, 0, 0, 1};
    /// Replaces the fill colour unless it is empty.
    host::quartzcore::Pattern fill_pattern;
    host::quartzcore::Rgba stroke{0, 0, 0, 1};
    double alpha = 1;
    CGInterpolationQuality interpolation = kCGInterpolationDefault;
  };

  host::quartzcore::Surface surface;
  host::quartzcore::Drawing drawing;
  host::quartzcore::Opacity opacity = host::quartzcore::Opacity::Translucent;
  std::vector<State> states = std::vector<State>(1);
  int references = 1;

  State& state() { return states.back(); }
  cairo_t* cairo() const { return drawing.get(); }
};

namespace host::quartzcore {

/// Returns a context (+1) on new pixels, transparent or, for an opaque one, black. `size` is in
/// points, with `scale` pixels per point, rounded up to whole pixels.
CGContextRef make_bitmap_context(CGSize size, double scale, Opacity opacity);

/// Returns the context's Cairo drawing, for text; null for null.
inline cairo_t* cairo_of(CGContextRef context) {
  return context ? context->cairo() : nullptr;
}

/// Draws the whole image into `rect` of the drawing's user space.
void draw_image(cairo_t* drawing, const Image& image, CGRect rect, double alpha);

}  // namespace host::quartzcore
