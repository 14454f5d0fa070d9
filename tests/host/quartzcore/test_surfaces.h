#pragma once

#include <algorithm>
#include <cstdint>
#include <random>

#include "host/quartzcore/pixels/surface.h"

namespace host::test {

inline std::uint32_t* row_of(const quartzcore::Surface& surface, int y) {
  return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface.get()) +
                                          static_cast<std::ptrdiff_t>(y) *
                                              cairo_image_surface_get_stride(surface.get()));
}

inline quartzcore::Surface filled(int width, int height, std::uint32_t color) {
  const quartzcore::Surface surface = quartzcore::make_surface(width, height);
  for (int y = 0; y < height; ++y)
    std::fill_n(row_of(surface, y), width, color);
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

inline quartzcore::Surface opaque_noise(int width, int height, std::mt19937& random) {
  const quartzcore::Surface surface = filled(width, height, 0);
  for (int y = 0; y < height; ++y)
    std::generate_n(row_of(surface, y), width, [&] { return 0xff000000 | (random() & 0xffffff); });
  cairo_surface_mark_dirty(surface.get());
  return surface;
}

}  // namespace host::test
