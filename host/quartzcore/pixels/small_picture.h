#pragma once

#include <vector>

#include "host/quartzcore/pixels/pixel_memory.h"
#include "host/quartzcore/pixels/pixel_rect.h"
#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// Blue, green, red, alpha, 0 to 255: all four of a pixel in one register.
using Channels = float __attribute__((vector_size(16)));

/// A picture of which each pixel stands for a square of the screen's pixels. A blur hides that, and
/// costs the less.
struct SmallPicture {
  using Pixels = std::vector<Channels, PixelAllocator<Channels>>;

  /// Pixels of the screen to the side of one of these: 1, 2, 4 or 8.
  int reduction = 1;
  int width = 0;
  int height = 0;
  Pixels pixels;  // row by row

  Channels* row(int y) { return pixels.data() + static_cast<std::ptrdiff_t>(y) * width; }
  const Channels* row(int y) const {
    return pixels.data() + static_cast<std::ptrdiff_t>(y) * width;
  }
};

/// The mean of each square of `place` in the surface; squares at the right and bottom edges may be
/// cut off.
SmallPicture reduce(const Surface& surface, const PixelRect& place, int reduction);

/// The picture that lies reduced in `surface` already, pixel by pixel.
SmallPicture take_reduced(const Surface& surface, int reduction);

/// Fills the surface with the picture at the screen's size, opaque, blending between the squares.
void enlarge(const SmallPicture& picture, const Surface& surface);

/// Paints the same over the part `damage` of a surface, with an opacity and without a copy in
/// between. The picture's top left is the surface's pixel (x, y).
void paint_enlarged(const SmallPicture& picture, const Surface& surface, int x, int y,
                    const PixelRect& damage, double opacity);

}  // namespace host::quartzcore
