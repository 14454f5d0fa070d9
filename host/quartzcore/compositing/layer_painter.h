#pragma once

#include "host/quartzcore/compositing/image_cache.h"
#include "host/quartzcore/compositing/render_tree.h"

namespace host::quartzcore {

/// The surface being painted, and the screen pixel at its top left.
struct Canvas {
  Surface surface;
  Drawing drawing;
  int x = 0;
  int y = 0;
};

Canvas make_canvas(Surface surface, int x, int y);

/// Clips the canvas to the layer's bounds with their rounded corners.
void clip_to_layer(const Canvas& canvas, const RenderNode& node);

/// Paints the layer's own background, contents and drawing with the given opacity. The canvas is
/// clipped to `damage`, which is in pixels of the screen.
void paint_layer(const Canvas& canvas, const RenderNode& node, const PixelRect& damage,
                 double opacity, ImageCache& images);
/// Paints the border, which is above the sublayers.
void paint_border(const Canvas& canvas, const RenderNode& node, double opacity);

/// Copies or blends `surface`, whose top left is the screen pixel (x, y).
void paint_surface(const Canvas& canvas, const Surface& surface, int x, int y, double opacity,
                   Opacity kind);
/// The same, of as much of the surface as fits into `place`.
void paint_surface(const Canvas& canvas, const Surface& surface, const PixelRect& place,
                   double opacity, Opacity kind);

}  // namespace host::quartzcore
