#include "host/quartzcore/pixels/small_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "host/quartzcore/pixels/pixel_blend.h"
#include "host/quartzcore/pixels/wide_loops.h"

namespace host::quartzcore {
namespace {

using TwoPixels = std::uint16_t __attribute__((vector_size(16)));
using TwoPixelsBytes = std::uint8_t __attribute__((vector_size(8)));
using FourPixels = std::uint16_t __attribute__((vector_size(32)));
using FourPixelsBytes = std::uint8_t __attribute__((vector_size(16)));

// Blending counts in sixteenths, because blending in two directions must fit 16 bits.
constexpr int kWhole = 16;
constexpr std::uint8_t kOpaque = 255;

SmallPicture make_small(int width, int height, int reduction) {
  const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return {reduction, width, height, SmallPicture::Pixels(count)};
}

SONAVUE_WIDE void add_row(const std::uint8_t* bytes, std::vector<std::uint16_t>& sums) {
  std::uint16_t* sum = sums.data();
  for (std::size_t i = 0; i < sums.size(); ++i)
    sum[i] = static_cast<std::uint16_t>(sum[i] + bytes[i]);
}

/// Converts the sums of columns to the means of squares.
SONAVUE_WIDE void take_means(const std::vector<std::uint16_t>& sums, int rows,
                             const SmallPicture& picture, Channels* to) {
  const int columns = static_cast<int>(sums.size()) / 4;
  for (int x = 0; x < picture.width; ++x) {
    const int first = x * picture.reduction;
    const int last = std::min(first + picture.reduction, columns);
    std::array<int, 4> sum{};
    for (int column = first; column < last; ++column) {
      for (std::size_t channel = 0; channel < 4; ++channel)
        sum[channel] += sums[static_cast<std::size_t>(column) * 4 + channel];
    }
    const float share = 1.0F / static_cast<float>(rows * (last - first));
    to[x] = Channels{static_cast<float>(sum[0]), static_cast<float>(sum[1]),
                     static_cast<float>(sum[2]), static_cast<float>(sum[3])} *
            share;
  }
}

/// How far the k-th pixel after the middle of a square is towards the middle of the next, in
/// sixteenths.
std::uint16_t weight(int k, int reduction) {
  return static_cast<std::uint16_t>((kWhole * k + kWhole / 2) / reduction);
}

/// Neighbouring pixels of a row of a small picture as whole numbers.
using Line = std::vector<std::uint16_t>;

std::uint16_t whole_number(float channel) {
  return static_cast<std::uint16_t>(channel + 0.5F);
}

/// Returns `count` pixels of the row from `first` on. Pixels and rows beyond the edges repeat the
/// last ones.
Line whole_numbers(const SmallPicture& picture, int y, int first, int count) {
  const Channels* row = picture.row(std::clamp(y, 0, picture.height - 1));
  Line line(static_cast<std::size_t>(count) * 4);
  for (int i = 0; i < count; ++i) {
    const Channels& pixel = row[std::clamp(first + i, 0, picture.width - 1)];
    for (int channel = 0; channel < 4; ++channel)
      line[static_cast<std::size_t>(i * 4 + channel)] =
          channel == 3 ? kOpaque : whole_number(pixel[channel]);
  }
  return line;
}

SONAVUE_WIDE void blend_lines(const Line& here, const Line& next, std::uint16_t to, Line& blended) {
  const auto rest = static_cast<std::uint16_t>(kWhole - to);
  for (std::size_t i = 0; i < blended.size(); ++i)
    blended[i] = static_cast<std::uint16_t>(here[i] * rest + next[i] * to);
}

/// Fills all places with the same pixel.
template <class Pixels>
[[gnu::always_inline]] inline void fill(Pixels& places, const std::uint16_t* pixel) {
  std::array<std::uint16_t, sizeof(Pixels) / sizeof *pixel> all;
  for (std::size_t place = 0; place < all.size(); place += 4)
    std::memcpy(&all[place], pixel, 4 * sizeof *pixel);
  std::memcpy(&places, all.data(), sizeof places);
}

/// Enlarges a line, counted in sixteenths: `Reduction` pixels for each gap between two of its
/// pixels. All steps over a gap are equal, so only the first pixels need a multiplication.
template <int Reduction, class Pixels, class Bytes>
[[gnu::always_inline]] inline void spread(const Line& line, std::uint8_t* to) {
  constexpr int kCount = sizeof(Bytes) / 4;
  Pixels weights;
  for (int i = 0; i < 4 * kCount; ++i)
    weights[i] = weight(i / 4, Reduction);
  const auto step = static_cast<std::uint16_t>(kWhole * kCount / Reduction);
  const Pixels half = Pixels{} + static_cast<std::uint16_t>(kWhole * kWhole / 2);
  const std::uint16_t* const end = line.data() + line.size();
  Pixels here;
  Pixels next;
  fill(here, line.data());
  for (const std::uint16_t* pixel = line.data() + 4; pixel < end; pixel += 4) {
    fill(next, pixel);
    const Pixels gap = next - here;
    Pixels mixed = here * static_cast<std::uint16_t>(kWhole) + half + gap * weights;
    for (int done = 0; done < Reduction; done += kCount) {
      const Bytes bytes = __builtin_convertvector(mixed >> 8, Bytes);
      std::memcpy(to, &bytes, sizeof bytes);
      to += sizeof bytes;
      mixed += gap * step;
    }
    here = next;
  }
}

/// Returns the squares, counted from the top left of `place`, that some pixels in it touch.
PixelRect squares_of(const SmallPicture& picture, const PixelRect& place, const PixelRect& pixels) {
  const int side = picture.reduction;
  return from_edges((pixels.x - place.x) / side, (pixels.y - place.y) / side,
                    (pixels.right() - place.x + side - 1) / side,
                    (pixels.bottom() - place.y + side - 1) / side);
}

PixelRect pixels_of(const PixelRect& squares, int side, const PixelRect& place) {
  return {place.x + squares.x * side, place.y + squares.y * side, squares.width * side,
          squares.height * side};
}

/// True if two squares look different when they are enlarged.
bool differs(const Channels& one, const Channels& other) {
  for (int channel = 0; channel < 3; ++channel) {
    if (whole_number(one[channel]) != whole_number(other[channel])) return true;
  }
  return false;
}

using Spread = void (*)(const Line& line, std::uint8_t* to);

SONAVUE_WIDE void spread_2(const Line& line, std::uint8_t* to) {
  spread<2, TwoPixels, TwoPixelsBytes>(line, to);
}
SONAVUE_WIDE void spread_4(const Line& line, std::uint8_t* to) {
  spread<4, FourPixels, FourPixelsBytes>(line, to);
}
SONAVUE_WIDE void spread_8(const Line& line, std::uint8_t* to) {
  spread<8, FourPixels, FourPixelsBytes>(line, to);
}

Spread spread_over(int reduction) {
  return reduction == 2 ? &spread_2 : reduction == 4 ? &spread_4 : &spread_8;
}

/// Computes a part of the enlarged picture, row by row.
class Enlarger {
 public:
  Enlarger(const SmallPicture& picture, const PixelRect& part)
      : reduction_(picture.reduction),
        spread_(spread_over(picture.reduction)),
        first_line_(gap_at(part.y) - 1) {
    const int first = gap_at(part.x) - 1;
    const int count = gap_at(part.right() - 1) - first + 1;
    for (int y = first_line_; y <= gap_at(part.bottom() - 1); ++y)
      lines_.push_back(whole_numbers(picture, y, first, count));
    blended_.resize(lines_.front().size());
    row_.resize((blended_.size() - 4) * static_cast<std::size_t>(reduction_));
    skipped_ = std::ptrdiff_t{from_middle(part.x) % reduction_} * 4;
  }

  /// Returns the part's pixels of the row `y`, which are valid until the next call.
  const std::uint8_t* row(int y) {
    const Line& line = line_at(gap_at(y));
    if (reduction_ == 1) {
      std::copy(line.begin() + 4, line.end(), row_.begin());
      return row_.data();
    }
    blend_lines(line_at(gap_at(y) - 1), line, weight(from_middle(y) % reduction_, reduction_),
                blended_);
    spread_(blended_, row_.data());
    return row_.data() + skipped_;
  }

 private:
  /// The middle of the first square is half a square beyond the edge.
  int from_middle(int pixel) const { return pixel + reduction_ / 2; }
  /// The number of the square whose middle is the end of the pixel's gap between two middles.
  int gap_at(int pixel) const { return from_middle(pixel) / reduction_; }
  const Line& line_at(int i) const { return lines_[static_cast<std::size_t>(i - first_line_)]; }

  int reduction_;
  Spread spread_;
  int first_line_;
  std::vector<Line> lines_;
  Line blended_;
  std::vector<std::uint8_t> row_;
  // The bytes of a row before the part.
  std::ptrdiff_t skipped_;
};

}  // namespace

SmallPicture reduce(const Surface& surface, const PixelRect& place, int reduction) {
  cairo_surface_flush(surface.get());
  const std::uint8_t* bytes = cairo_image_surface_get_data(surface.get());
  const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface.get());
  SmallPicture picture = make_small((place.width + reduction - 1) / reduction,
                                    (place.height + reduction - 1) / reduction, reduction);
  std::vector<std::uint16_t> sums(static_cast<std::size_t>(place.width) * 4);
  for (int y = 0; y < picture.height; ++y) {
    std::fill(sums.begin(), sums.end(), std::uint16_t{0});
    const int first = y * reduction;
    const int last = std::min(first + reduction, place.height);
    for (int row = first; row < last; ++row)
      add_row(bytes + (place.y + row) * stride + std::ptrdiff_t{place.x} * 4, sums);
    take_means(sums, last - first, picture, picture.row(y));
  }
  return picture;
}

PixelRect source_pixels(const SmallPicture& picture, const PixelRect& place,
                        const PixelRect& changed) {
  return intersection(pixels_of(squares_of(picture, place, changed), picture.reduction, place),
                      place);
}

void reduce_again(SmallPicture& picture, const Surface& surface, const PixelRect& place,
                  const PixelRect& changed) {
  const PixelRect squares = squares_of(picture, place, changed);
  const SmallPicture part =
      reduce(surface, source_pixels(picture, place, changed), picture.reduction);
  for (int y = 0; y < part.height; ++y)
    std::copy_n(part.row(y), part.width, picture.row(squares.y + y) + squares.x);
}

SmallPicture take_reduced(const Surface& surface, int reduction) {
  SmallPicture picture = reduce(surface, {0, 0, width_of(surface), height_of(surface)}, 1);
  picture.reduction = reduction;
  return picture;
}

void enlarge(const SmallPicture& picture, const Surface& surface) {
  paint_enlarged(picture, surface, 0, 0, {0, 0, width_of(surface), height_of(surface)}, 1);
}

PixelRect difference_enlarged(const SmallPicture& one, const SmallPicture& other,
                              const PixelRect& place) {
  PixelRect squares;
  for (int y = 0; y < one.height; ++y) {
    for (int x = 0; x < one.width; ++x) {
      if (differs(one.row(y)[x], other.row(y)[x])) squares = united(squares, {x, y, 1, 1});
    }
  }
  if (squares.is_empty()) return {};
  // Between the middles of two squares, a pixel is a mixture of both.
  const PixelRect around{squares.x - 1, squares.y - 1, squares.width + 2, squares.height + 2};
  return intersection(pixels_of(around, one.reduction, place), place);
}

void paint_enlarged(const SmallPicture& picture, const Surface& surface, int x, int y,
                    const PixelRect& damage, double opacity) {
  if (damage.is_empty()) return;
  cairo_surface_flush(surface.get());
  std::uint8_t* bytes = cairo_image_surface_get_data(surface.get());
  const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface.get());
  const int share = share_of(opacity);
  Enlarger enlarger(picture, {damage.x - x, damage.y - y, damage.width, damage.height});
  for (int at = damage.y; at < damage.bottom(); ++at) {
    const std::uint8_t* from = enlarger.row(at - y);
    std::uint8_t* to = bytes + at * stride + std::ptrdiff_t{damage.x} * 4;
    blend_row(from, to, damage.width, share);
  }
  cairo_surface_mark_dirty_rectangle(surface.get(), damage.x, damage.y, damage.width,
                                     damage.height);
}

}  // namespace host::quartzcore
