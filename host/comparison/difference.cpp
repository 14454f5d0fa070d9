#include "host/comparison/difference.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "host/comparison/stored_picture.h"

namespace host::comparison {
namespace {

constexpr std::uint32_t kRed = 0xFFE00000;
// A pale pixel has a quarter of its contrast, on white.
constexpr int kPaleShare = 4;
constexpr int kWhite = 255;
constexpr int kColourShifts[] = {0, 8, 16};

std::uint32_t pixel_at(const screen::Picture& picture, int x, int y) {
  std::uint32_t pixel = 0;
  std::memcpy(&pixel, picture.pixels + std::ptrdiff_t{y} * picture.stride + std::ptrdiff_t{x} * 4,
              sizeof pixel);
  return pixel;
}

int colour_of(std::uint32_t pixel, int shift) {
  return static_cast<int>(pixel >> shift & 0xFF);
}

int largest_difference(std::uint32_t one, std::uint32_t other) {
  int largest = 0;
  for (const int shift : kColourShifts)
    largest = std::max(largest, std::abs(colour_of(one, shift) - colour_of(other, shift)));
  return largest;
}

std::uint32_t pale(std::uint32_t pixel) {
  std::uint32_t made = 0xFF000000;
  for (const int shift : kColourShifts) {
    const int colour = kWhite - (kWhite - colour_of(pixel, shift)) / kPaleShare;
    made |= static_cast<std::uint32_t>(colour) << shift;
  }
  return made;
}

}  // namespace

Difference difference_of(const screen::Picture& one, const screen::Picture& other) {
  Difference made;
  made.marked.reserve(static_cast<std::size_t>(one.width) * static_cast<std::size_t>(one.height));
  for (int y = 0; y < one.height; ++y) {
    for (int x = 0; x < one.width; ++x) {
      const std::uint32_t pixel = pixel_at(one, x, y);
      const int largest = largest_difference(pixel, pixel_at(other, x, y));
      if (largest > 0) ++made.pixels;
      made.largest = std::max(made.largest, largest);
      made.marked.push_back(largest > 0 ? kRed : pale(pixel));
    }
  }
  return made;
}

std::optional<std::string> reason_not_equal(const screen::Picture& shown, const std::string& stored,
                                            const std::string& marked) {
  std::string problem;
  const auto read = StoredPicture::read(stored, problem);
  if (!read) return problem;
  const screen::Picture wanted = read->picture();
  if (wanted.width != shown.width || wanted.height != shown.height) {
    return fmt::format("the screen has {} × {} pixels, and {} has {} × {}", shown.width,
                       shown.height, stored, wanted.width, wanted.height);
  }
  const Difference difference = difference_of(shown, wanted);
  if (difference.pixels == 0) return std::nullopt;
  const auto* pixels = reinterpret_cast<const unsigned char*>(difference.marked.data());
  const auto failure =
      screen::write_png({pixels, shown.width, shown.height, shown.width * 4}, marked);
  return fmt::format(
      "the screen differs from {} in {} of {} pixels, by at most {} of {}; {}", stored,
      difference.pixels, difference.marked.size(), difference.largest, kWhite,
      failure ? "no picture of the difference: " + *failure : "the difference is in " + marked);
}

}  // namespace host::comparison
