#include "host/quartzcore/pixels/area_average.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/host/quartzcore/test_surfaces.h"

namespace host::quartzcore {
namespace {

using test::opaque_noise;
using test::row_of;

TEST(AreaAverage, EveryPixelIsTheMeanOfWhatItCovers) {
  constexpr int kWidth = 60;
  constexpr int kHeight = 41;
  std::mt19937 random{3};
  const Surface source = opaque_noise(kWidth, kHeight, random);
  struct Size {
    int width, height;
  };
  for (const Size size : {Size{60, 40}, Size{50, 35}, Size{17, 41}, Size{8, 3}, Size{1, 1}}) {
    const Surface copy = area_average(source, size.width, size.height);
    const double across = static_cast<double>(kWidth) / size.width;
    const double down = static_cast<double>(kHeight) / size.height;
    const auto share = [](int pixel, double from, double to) {
      return std::max(0.0, std::min(pixel + 1.0, to) - std::max<double>(pixel, from));
    };
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        double mean = 0;
        for (int v = 0; v < kHeight; ++v) {
          for (int u = 0; u < kWidth; ++u)
            mean += share(v, y * down, (y + 1) * down) * share(u, x * across, (x + 1) * across) *
                    (row_of(source, v)[u] >> 8 & 0xff);
        }
        ASSERT_NEAR(row_of(copy, y)[x] >> 8 & 0xff, mean / across / down, 0.51) << x << ", " << y;
        ASSERT_EQ(row_of(copy, y)[x] >> 24, 0xffU);
      }
    }
  }
}

}  // namespace
}  // namespace host::quartzcore
