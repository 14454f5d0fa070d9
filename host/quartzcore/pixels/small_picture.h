#pragma once

#include <vector>

#include "host/quartzcore/pixels/pixel_memory.h"
#include "host/quartzcore/pixels/pixel_rect.h"
#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// The blue, green, red and alpha of a pixel, 0 to 255, in one register.
using Channels = float __attribute__((vector_size(16)));

/// A picture in which each pixel represents a square of screen pixels. A blur hides this and is
/// cheaper on fewer pixels.
struct SmallPicture {
  using Pixels = std::vector<Channels, PixelAllocator<Channels>>;

  /// The side of a square in screen pixels: 1, 2, 4 or 8.
  int reduction = 1;
  int width = 0;
  int height = 0;
  Pixels pixels;  // row by row

  Channels* row(int y) { return pixels.data() + static_cast<std::ptrdiff_t>(y) * width; }
  const Channels* row(int y) const {
    return pixels.data() + static_cast<std::ptrdiff_t>(y) * width;
  }
};

/// Returns the mean of each square of `place` in the surface. Squares at the right and bottom edges
/// may be cut off.
SmallPicture reduce(const Surface& surface, const PixelRect& place, int reduction);

/// Returns the pixels of the surface that have to be known for `reduce_again` with the same
/// arguments: those of all squares that `changed` touches.
PixelRect source_pixels(const SmallPicture& picture, const PixelRect& place,
                        const PixelRect& changed);

/// Makes the picture what `reduce` returns for the same place, if it was that before the pixels of
/// `changed`, which is in `place`, changed.
void reduce_again(SmallPicture& picture, const Surface& surface, const PixelRect& place,
                  const PixelRect& changed);

/// Returns the picture in `surface`, which has already been reduced.
SmallPicture take_reduced(const Surface& surface, int reduction);

/// Fills the surface with the picture enlarged to the screen's size, opaque, with smooth
/// transitions between the squares.
void enlarge(const SmallPicture& picture, const Surface& surface);

/// Returns the pixels in which two pictures of the same size and reduction differ when they are
/// enlarged at `place`, and some around them.
PixelRect difference_enlarged(const SmallPicture& one, const SmallPicture& other,
                              const PixelRect& place);

/// Paints the same over the part `damage` of a surface, with an opacity and without an intermediate
/// copy. The picture's top left is at pixel (x, y) of the surface.
void paint_enlarged(const SmallPicture& picture, const Surface& surface, int x, int y,
                    const PixelRect& damage, double opacity);

}  // namespace host::quartzcore
