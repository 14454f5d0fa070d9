#include "host/quartzcore/pixels/pixel_blend.h"

#include <cmath>
#include <cstring>

#include "host/quartzcore/pixels/wide_loops.h"

namespace host::quartzcore {
namespace {

constexpr int kWhole = 256;

SONAVUE_WIDE void mix(const std::uint8_t* from, std::uint8_t* to, int bytes, int share) {
  const auto own = static_cast<std::uint16_t>(share);
  const auto rest = static_cast<std::uint16_t>(kWhole - share);
  for (int i = 0; i < bytes; ++i) {
    const auto sum = static_cast<std::uint16_t>(from[i] * own + to[i] * rest + kWhole / 2);
    to[i] = static_cast<std::uint8_t>(sum >> 8);
  }
}

}  // namespace

int share_of(double opacity) {
  return static_cast<int>(std::lround(opacity * kWhole));
}

void blend_row(const std::uint8_t* from, std::uint8_t* to, int pixels, int share) {
  if (share >= kWhole) {
    std::memcpy(to, from, static_cast<std::size_t>(pixels) * 4);
  } else {
    mix(from, to, pixels * 4, share);
  }
}

void blend_opaque(const Surface& surface, const Surface& below, int x, int y,
                  const PixelRect& damage, double opacity) {
  const PixelRect part = intersection(damage, {x, y, width_of(surface), height_of(surface)});
  if (part.is_empty()) return;
  const int share = share_of(opacity);
  cairo_surface_flush(below.get());
  const auto row_of = [](const Surface& one, int left, int top) {
    return cairo_image_surface_get_data(one.get()) +
           std::ptrdiff_t{top} * cairo_image_surface_get_stride(one.get()) +
           std::ptrdiff_t{left} * 4;
  };
  for (int row = part.y; row < part.bottom(); ++row)
    blend_row(row_of(surface, part.x - x, row - y), row_of(below, part.x, row), part.width, share);
  cairo_surface_mark_dirty_rectangle(below.get(), part.x, part.y, part.width, part.height);
}

}  // namespace host::quartzcore
