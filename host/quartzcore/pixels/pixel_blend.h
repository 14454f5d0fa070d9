#pragma once

#include <cstdint>

#include "host/quartzcore/pixels/pixel_rect.h"
#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// Converts an opacity, 0 to 1, to a share of 256.
int share_of(double opacity);

/// Blends a row of opaque pixels over another row, with an opacity of `share` / 256.
void blend_row(const std::uint8_t* from, std::uint8_t* to, int pixels, int share);

/// Blends an opaque surface over the part `damage` of the surface `below`, with an opacity. The
/// surface's top left is at pixel (x, y) of `below`.
void blend_opaque(const Surface& surface, const Surface& below, int x, int y,
                  const PixelRect& damage, double opacity);

/// Paints a surface with transparent pixels over the same part of `below`, rounded as pixman does.
void blend_over(const Surface& surface, const Surface& below, int x, int y,
                const PixelRect& damage);

}  // namespace host::quartzcore
