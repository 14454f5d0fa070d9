#include "host/quartzcore/pixels/pixel_blend.h"

#include <array>
#include <cmath>
#include <cstring>

#include "host/quartzcore/pixels/wide_loops.h"

namespace host::quartzcore {
namespace {

constexpr int kWhole = 256;
constexpr std::uint32_t kOpaque = 255;

SONAVUE_WIDE void mix(const std::uint8_t* from, std::uint8_t* to, int bytes, int share) {
  const auto own = static_cast<std::uint16_t>(share);
  const auto rest = static_cast<std::uint16_t>(kWhole - share);
  for (int i = 0; i < bytes; ++i) {
    const auto sum = static_cast<std::uint16_t>(from[i] * own + to[i] * rest + kWhole / 2);
    to[i] = static_cast<std::uint8_t>(sum >> 8);
  }
}

// Eight pixels, and every second channel of them.
using EightPixels = std::uint32_t __attribute__((vector_size(32)));
using FourPixels = std::uint32_t __attribute__((vector_size(16)));
using TwoWords = std::uint64_t __attribute__((vector_size(16)));
using HalfChannels = std::uint16_t __attribute__((vector_size(32)));
constexpr int kStep = 8;

[[gnu::always_inline]] inline bool is_all(const EightPixels& pixels, std::uint32_t wanted) {
  const EightPixels differences = pixels ^ (EightPixels{} + wanted);
  std::array<FourPixels, 2> halves;
  std::memcpy(halves.data(), &differences, sizeof halves);
  const auto parts = reinterpret_cast<TwoWords>(halves[0] | halves[1]);
  return (parts[0] | parts[1]) == 0;
}

/// Adds to `above` what its alpha leaves of `below`; both are every second channel, from `shift`
/// on.
[[gnu::always_inline]] inline void add_rest(EightPixels& above, const EightPixels& below,
                                            const EightPixels& left, int shift) {
  const EightPixels half = EightPixels{} + 0x00ff00ffU;
  const auto rest = reinterpret_cast<HalfChannels>(left);
  const auto product = reinterpret_cast<HalfChannels>(below >> shift & half) * rest +
                       static_cast<std::uint16_t>(128);
  // Dividing by 255, rounded to the nearest.
  const auto sum =
      reinterpret_cast<HalfChannels>(above >> shift & half) + ((product + (product >> 8)) >> 8);
  const auto most = HalfChannels{} + static_cast<std::uint16_t>(kOpaque);
  const auto result = reinterpret_cast<EightPixels>(sum > most ? most : sum);
  above = (above & ~(half << shift)) | result << shift;
}

[[gnu::always_inline]] inline void step_over(const std::uint8_t* from, std::uint8_t* to,
                                             std::size_t bytes) {
  EightPixels above{};
  EightPixels below{};
  std::memcpy(&above, from, bytes);
  if (is_all(above, 0)) return;
  if (!is_all(above >> 24, kOpaque)) {
    std::memcpy(&below, to, bytes);
    const EightPixels left = kOpaque - (above >> 24);
    add_rest(above, below, left | left << 16, 0);
    add_rest(above, below, left | left << 16, 8);
  }
  std::memcpy(to, &above, bytes);
}

SONAVUE_WIDE void over_row(const std::uint8_t* from, std::uint8_t* to, int pixels) {
  for (; pixels >= kStep; pixels -= kStep) {
    step_over(from, to, sizeof(EightPixels));
    from += sizeof(EightPixels);
    to += sizeof(EightPixels);
  }
  if (pixels > 0) step_over(from, to, static_cast<std::size_t>(pixels) * 4);
}

/// Calls `paint(from, to, pixels)` for each row of the surface within the damage.
template <class Paint>
void paint_rows(const Surface& surface, const Surface& below, int x, int y, const PixelRect& damage,
                Paint paint) {
  const PixelRect part = intersection(damage, {x, y, width_of(surface), height_of(surface)});
  if (part.is_empty()) return;
  cairo_surface_flush(below.get());
  const std::ptrdiff_t from_stride = cairo_image_surface_get_stride(surface.get());
  const std::ptrdiff_t to_stride = cairo_image_surface_get_stride(below.get());
  const std::uint8_t* from = cairo_image_surface_get_data(surface.get()) +
                             (part.y - y) * from_stride + std::ptrdiff_t{part.x - x} * 4;
  std::uint8_t* to =
      cairo_image_surface_get_data(below.get()) + part.y * to_stride + std::ptrdiff_t{part.x} * 4;
  for (int row = 0; row < part.height; ++row, from += from_stride, to += to_stride)
    paint(from, to, part.width);
  cairo_surface_mark_dirty_rectangle(below.get(), part.x, part.y, part.width, part.height);
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
  const int share = share_of(opacity);
  paint_rows(surface, below, x, y, damage,
             [share](const std::uint8_t* from, std::uint8_t* to, int pixels) {
               blend_row(from, to, pixels, share);
             });
}

void blend_over(const Surface& surface, const Surface& below, int x, int y,
                const PixelRect& damage) {
  paint_rows(surface, below, x, y, damage, over_row);
}

}  // namespace host::quartzcore
