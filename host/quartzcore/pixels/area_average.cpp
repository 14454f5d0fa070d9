#include "host/quartzcore/pixels/area_average.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "host/quartzcore/pixels/wide_loops.h"

namespace host::quartzcore {
namespace {

/// The four channels of a pixel in one register.
using Channels = float __attribute__((vector_size(16)));

/// The source pixels that one pixel of the copy covers; the first and the last may count partly.
struct Stretch {
  Stretch(int index, double ratio) {
    const double begin = index * ratio;
    const double end = (index + 1) * ratio;
    first = static_cast<int>(begin);
    // Rounding may put the end of the last stretch slightly beyond the source.
    last = static_cast<int>(end - 1e-6);
    first_weight = static_cast<float>(std::min(end, first + 1.0) - begin);
    last_weight = last > first ? static_cast<float>(end - last) : 0;
  }

  int first;
  int last;
  float first_weight;
  /// 0 when the last pixel is the first.
  float last_weight;
};

constexpr std::size_t kChannels = 4;

SONAVUE_WIDE void begin_sums(const std::uint8_t* row, float weight, std::vector<float>& sums) {
  for (std::size_t i = 0; i < sums.size(); ++i)
    sums[i] = static_cast<float>(row[i]) * weight;
}

SONAVUE_WIDE void add_to_sums(const std::uint8_t* row, float weight, std::vector<float>& sums) {
  for (std::size_t i = 0; i < sums.size(); ++i)
    sums[i] += static_cast<float>(row[i]) * weight;
}

/// Returns the channels of the pixel at `x` of a row.
[[gnu::always_inline]] inline Channels pixel_at(const std::vector<float>& row, int x) {
  Channels pixel;
  std::memcpy(&pixel, row.data() + static_cast<std::size_t>(x) * kChannels, sizeof pixel);
  return pixel;
}

/// Adds up the columns of each pixel of the copy.
void sum_columns(const std::vector<float>& columns, const std::vector<Stretch>& stretches,
                 std::vector<float>& sums) {
  float* to = sums.data();
  for (const Stretch& stretch : stretches) {
    Channels sum = pixel_at(columns, stretch.first) * stretch.first_weight;
    for (int x = stretch.first + 1; x < stretch.last; ++x)
      sum += pixel_at(columns, x);
    sum += pixel_at(columns, stretch.last) * stretch.last_weight;
    std::memcpy(to, &sum, sizeof sum);
    to += kChannels;
  }
}

SONAVUE_WIDE void write_row(const std::vector<float>& sums, float scale, std::uint8_t* out) {
  const float* const from = sums.data();
  const std::size_t count = sums.size();
  for (std::size_t i = 0; i < count; ++i)
    out[i] = static_cast<std::uint8_t>(static_cast<std::int32_t>(from[i] * scale + 0.5F));
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
  std::vector<float> sums(static_cast<std::size_t>(width_of(source)) * kChannels);
  std::vector<float> means(static_cast<std::size_t>(width) * kChannels);
  for (int y = 0; y < height; ++y) {
    const Stretch rows(y, down);
    begin_sums(from + rows.first * from_stride, rows.first_weight, sums);
    for (int row = rows.first + 1; row <= rows.last; ++row)
      add_to_sums(from + row * from_stride, row < rows.last ? 1.0F : rows.last_weight, sums);
    sum_columns(sums, columns, means);
    write_row(means, scale, to + y * to_stride);
  }
  cairo_surface_mark_dirty(result.get());
  return result;
}

}  // namespace host::quartzcore
