#include "host/quartzcore/small_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace host::quartzcore {
namespace {

using Bytes = std::uint8_t __attribute__((vector_size(8)));
using Halves = std::uint16_t __attribute__((vector_size(16)));

// Blending counts in sixteenths, so that two directions of it fit 16 bits.
constexpr int kWhole = 16;
constexpr std::uint8_t kOpaque = 255;

SmallPicture make_small(int width, int height, int reduction) {
  const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return {reduction, width, height, std::vector<Channels>(count)};
}

void add_row(const std::uint8_t* bytes, std::vector<std::uint16_t>& sums) {
  std::uint16_t* sum = sums.data();
  for (std::size_t i = 0; i < sums.size(); ++i)
    sum[i] = static_cast<std::uint16_t>(sum[i] + bytes[i]);
}

/// Sums of columns to means of squares.
void take_means(const std::vector<std::uint16_t>& sums, int rows, const SmallPicture& picture,
                Channels* to) {
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

/// How far the k-th pixel behind the middle of a square is on its way to the middle of the next.
std::uint16_t way(int k, int reduction) {
  return static_cast<std::uint16_t>((kWhole * k + kWhole / 2) / reduction);
}

/// The shares of a square's own pixel and of the next one, for two pixels of the screen at a time.
template <int Reduction>
struct Ways {
  Ways() {
    for (int pair = 0; pair < Reduction / 2; ++pair) {
      for (int i = 0; i < 8; ++i) {
        const std::uint16_t to = way(2 * pair + i / 4, Reduction);
        next[pair][i] = to;
        here[pair][i] = static_cast<std::uint16_t>(kWhole - to);
      }
    }
  }
  Halves here[Reduction / 2];
  Halves next[Reduction / 2];
};

/// Two of the same pixel.
Halves twice(const std::uint16_t* pixel) {
  using Pixels = std::uint64_t __attribute__((vector_size(16)));
  std::uint64_t one;
  std::memcpy(&one, pixel, sizeof one);
  return reinterpret_cast<Halves>(Pixels{one, one});
}

/// One row of a small picture in whole numbers, with its ends repeated once.
using Line = std::vector<std::uint16_t>;

Line whole_numbers(const SmallPicture& picture, int y) {
  Line line(static_cast<std::size_t>(picture.width + 2) * 4);
  for (int x = -1; x <= picture.width; ++x) {
    const Channels& pixel = picture.row(y)[std::clamp(x, 0, picture.width - 1)];
    for (int channel = 0; channel < 4; ++channel)
      line[static_cast<std::size_t>((x + 1) * 4 + channel)] =
          channel == 3 ? kOpaque : static_cast<std::uint16_t>(pixel[channel] + 0.5F);
  }
  return line;
}

void blend_lines(const Line& here, const Line& next, std::uint16_t to, Line& blended) {
  const auto rest = static_cast<std::uint16_t>(kWhole - to);
  for (std::size_t i = 0; i < blended.size(); ++i)
    blended[i] = static_cast<std::uint16_t>(here[i] * rest + next[i] * to);
}

/// Spreads a line, counted in sixteenths, over `Reduction` pixels for each gap between two of it.
template <int Reduction>
void spread(const Line& line, std::uint8_t* to) {
  const Ways<Reduction> ways;
  const Halves half = Halves{} + static_cast<std::uint16_t>(kWhole * kWhole / 2);
  const std::uint16_t* const end = line.data() + line.size();
  Halves here = twice(line.data());
  for (const std::uint16_t* pixel = line.data() + 4; pixel < end; pixel += 4) {
    const Halves next = twice(pixel);
    for (int pair = 0; pair < Reduction / 2; ++pair) {
      const Halves mixed = (here * ways.here[pair] + next * ways.next[pair] + half) >> 8;
      const Bytes bytes = __builtin_convertvector(mixed, Bytes);
      std::memcpy(to, &bytes, sizeof bytes);
      to += sizeof bytes;
    }
    here = next;
  }
}

using Spread = void (*)(const Line& line, std::uint8_t* to);

Spread spread_over(int reduction) {
  return reduction == 2 ? &spread<2> : reduction == 4 ? &spread<4> : &spread<8>;
}

/// Makes the rows of the screen from the rows of a small picture.
class Enlarger {
 public:
  explicit Enlarger(const SmallPicture& picture)
      : reduction_(picture.reduction), spread_(spread_over(picture.reduction)) {
    for (int y = 0; y < picture.height; ++y)
      lines_.push_back(whole_numbers(picture, y));
    blended_.resize(lines_.front().size());
    row_.resize((blended_.size() - 4) * static_cast<std::size_t>(reduction_));
  }

  /// The row `y` of the screen; valid until the next one is asked for.
  const std::uint8_t* row(int y) {
    // The middle of the first square is half a square down.
    const int from_middle = y + reduction_ / 2;
    const int next = from_middle / reduction_;
    if (reduction_ == 1) {
      const Line& line = lines_[static_cast<std::size_t>(y)];
      std::copy(line.begin() + 4, line.end() - 4, row_.begin());
      return row_.data();
    }
    blend_lines(line_at(next - 1), line_at(next), way(from_middle % reduction_, reduction_),
                blended_);
    spread_(blended_, row_.data());
    return row_.data() + std::ptrdiff_t{reduction_ / 2} * 4;
  }

 private:
  const Line& line_at(int i) const {
    return lines_[static_cast<std::size_t>(std::clamp(i, 0, static_cast<int>(lines_.size()) - 1))];
  }

  int reduction_;
  Spread spread_;
  std::vector<Line> lines_;
  Line blended_;
  std::vector<std::uint8_t> row_;
};

/// `share` of 256 parts of the source.
void blend_row(const std::uint8_t* from, std::uint8_t* to, int bytes, int share) {
  const auto own = static_cast<std::uint16_t>(share);
  const auto rest = static_cast<std::uint16_t>(256 - share);
  for (int i = 0; i < bytes; ++i) {
    const auto sum = static_cast<std::uint16_t>(from[i] * own + to[i] * rest + 128);
    to[i] = static_cast<std::uint8_t>(sum >> 8);
  }
}

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

SmallPicture take_reduced(const Surface& surface, int reduction) {
  SmallPicture picture = reduce(surface, {0, 0, width_of(surface), height_of(surface)}, 1);
  picture.reduction = reduction;
  return picture;
}

void enlarge(const SmallPicture& picture, const Surface& surface) {
  paint_enlarged(picture, surface, 0, 0, {0, 0, width_of(surface), height_of(surface)}, 1);
}

void paint_enlarged(const SmallPicture& picture, const Surface& surface, int x, int y,
                    const PixelRect& damage, double opacity) {
  cairo_surface_flush(surface.get());
  std::uint8_t* bytes = cairo_image_surface_get_data(surface.get());
  const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface.get());
  const int share = static_cast<int>(std::lround(opacity * 256));
  const int count = damage.width * 4;
  Enlarger enlarger(picture);
  for (int at = damage.y; at < damage.bottom(); ++at) {
    const std::uint8_t* from = enlarger.row(at - y) + std::ptrdiff_t{damage.x - x} * 4;
    std::uint8_t* to = bytes + at * stride + std::ptrdiff_t{damage.x} * 4;
    if (share >= 256) {
      std::memcpy(to, from, static_cast<std::size_t>(count));
    } else {
      blend_row(from, to, count, share);
    }
  }
  cairo_surface_mark_dirty_rectangle(surface.get(), damage.x, damage.y, damage.width,
                                     damage.height);
}

}  // namespace host::quartzcore
