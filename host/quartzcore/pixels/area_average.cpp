#include "host/quartzcore/pixels/area_average.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace host::quartzcore {
namespace {

/// The four channels of a pixel in one register.
using Channels = float __attribute__((vector_size(16)));
using WholeChannels = std::int32_t __attribute__((vector_size(16)));
/// The source pixels that one pixel of the copy covers; the first and the last may count partly.
struct Stretch {
  Stretch(int index, double ratio) {
    const double begin = index * ratio;
    const double end = (index + 1) * ratio;
    first = static_cast<int>(begin);
    // Rounding may put the end of the last stretch slightly beyond the source.
    last = static_cast<int>(end - 1e-6);
    first_weight = static_cast<float>(std::min(end, first + 1.0) - begin);
    last_weight = static_cast<float>(end - last);
  }

  int first;
  int last;
  float first_weight;
  /// Only used when the last pixel is not the first.
  float last_weight;
};

constexpr std::size_t kBytes = 4;

enum class Sums { Replace, Add };

using Sixteen = std::uint8_t __attribute__((vector_size(16)));
using Eight = std::uint16_t __attribute__((vector_size(16)));

Channels numbers(Eight halves) {
  return __builtin_convertvector(reinterpret_cast<WholeChannels>(halves), Channels);
}

/// Converts sixteen bytes to the numbers of four pixels, by interleaving them with zeros.
std::array<Channels, 4> four_pixels(const std::uint8_t* bytes) {
  Sixteen packed;
  std::memcpy(&packed, bytes, sizeof packed);
  const auto low = reinterpret_cast<Eight>(__builtin_shufflevector(
      packed, Sixteen{}, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
  const auto high = reinterpret_cast<Eight>(__builtin_shufflevector(
      packed, Sixteen{}, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31));
  const auto first = [](Eight halves) {
    return numbers(__builtin_shufflevector(halves, Eight{}, 0, 8, 1, 9, 2, 10, 3, 11));
  };
  const auto second = [](Eight halves) {
    return numbers(__builtin_shufflevector(halves, Eight{}, 4, 12, 5, 13, 6, 14, 7, 15));
  };
  return {first(low), second(low), first(high), second(high)};
}

Channels one_pixel(const std::uint8_t* bytes) {
  return Channels{static_cast<float>(bytes[0]), static_cast<float>(bytes[1]),
                  static_cast<float>(bytes[2]), static_cast<float>(bytes[3])};
}

template <Sums kSums>
void add_row(const std::uint8_t* row, float weight, std::vector<Channels>& sums) {
  const auto add = [weight](Channels& sum, const Channels& pixel) {
    sum = kSums == Sums::Replace ? pixel * weight : sum + pixel * weight;
  };
  std::size_t x = 0;
  for (; x + 4 <= sums.size(); x += 4) {
    const auto pixels = four_pixels(row + x * kBytes);
    for (std::size_t i = 0; i < 4; ++i)
      add(sums[x + i], pixels[i]);
  }
  for (; x < sums.size(); ++x)
    add(sums[x], one_pixel(row + x * kBytes));
}

/// Packs four numbers, each at most 255, into the bytes of a pixel in the same order.
std::uint32_t packed(const WholeChannels& channels) {
  std::array<std::uint32_t, 4> bytes;
  std::memcpy(bytes.data(), &channels, sizeof channels);
  if constexpr (std::endian::native == std::endian::little)
    return bytes[0] | bytes[1] << 8 | bytes[2] << 16 | bytes[3] << 24;
  return bytes[3] | bytes[2] << 8 | bytes[1] << 16 | bytes[0] << 24;
}

void write_row(const Channels* sums, const std::vector<Stretch>& columns, float scale,
               std::uint8_t* out) {
  const Channels half = Channels{} + 0.5F;
  for (const Stretch& column : columns) {
    Channels pixel = sums[column.first] * column.first_weight;
    for (int x = column.first + 1; x < column.last; ++x)
      pixel += sums[x];
    if (column.last > column.first) pixel += sums[column.last] * column.last_weight;
    const auto whole = __builtin_convertvector(pixel * scale + half, WholeChannels);
    const std::uint32_t bytes = packed(whole);
    std::memcpy(out, &bytes, sizeof bytes);
    out += sizeof bytes;
  }
}

}  // namespace

Surface area_average(const Surface& source, int width, int height) {
  const double across = static_cast<double>(width_of(source)) / width;
  const double down = static_cast<double>(height_of(source)) / height;
  std::vector<Stretch> columns;
  columns.reserve(static_cast<std::size_t>(width));
  for (int x = 0; x < width; ++x)
    columns.emplace_back(x, across);

  const Surface result = reused({}, width, height);
  cairo_surface_flush(source.get());
  const auto* from = cairo_image_surface_get_data(source.get());
  const std::ptrdiff_t from_stride = cairo_image_surface_get_stride(source.get());
  auto* to = cairo_image_surface_get_data(result.get());
  const std::ptrdiff_t to_stride = cairo_image_surface_get_stride(result.get());
  const auto scale = static_cast<float>(1 / (across * down));
  std::vector<Channels> sums(static_cast<std::size_t>(width_of(source)));
  for (int y = 0; y < height; ++y) {
    const Stretch rows(y, down);
    add_row<Sums::Replace>(from + rows.first * from_stride, rows.first_weight, sums);
    for (int row = rows.first + 1; row <= rows.last; ++row)
      add_row<Sums::Add>(from + row * from_stride, row < rows.last ? 1.0F : rows.last_weight, sums);
    write_row(sums.data(), columns, scale, to + y * to_stride);
  }
  cairo_surface_mark_dirty(result.get());
  return result;
}

}  // namespace host::quartzcore
