#pragma once

#include <cstdint>

#include "host/quartzcore/pixels/pixel_rect.h"
#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {

/// An opacity in 256 parts.
int share_of(double opacity);

/// Lays a row of opaque pixels over another one, with `share` of 256 parts.
void blend_row(const std::uint8_t* from, std::uint8_t* to, int pixels, int share);

/// Lays an opaque surface over another one, with an opacity and only in the part `damage` of that.
/// The surface's top left is the other one's pixel (x, y).
void blend_opaque(const Surface& surface, const Surface& below, int x, int y,
                  const PixelRect& damage, double opacity);

}  // namespace host::quartzcore
