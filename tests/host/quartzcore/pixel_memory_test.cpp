#include "host/quartzcore/pixels/pixel_memory.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "host/quartzcore/pixels/surface.h"

namespace host::quartzcore {
namespace {

using Contents = PixelMemory::Contents;

constexpr std::size_t kMegabyte = 1U << 20;

TEST(PixelMemory, AReturnedBlockServesTheNextOneOfAboutItsSize) {
  PixelMemory memory;
  memory.give_back(memory.take(kMegabyte, Contents::Anything));
  EXPECT_EQ(memory.kept(), kMegabyte);
  const auto much_smaller = memory.take(kMegabyte / 4, Contents::Anything);
  const auto larger = memory.take(kMegabyte + 1, Contents::Anything);
  EXPECT_EQ(memory.kept(), kMegabyte) << "neither fits";
  const auto a_little_smaller = memory.take(kMegabyte * 3 / 4, Contents::Anything);
  EXPECT_EQ(memory.kept(), 0U);
  for (const auto& block : {much_smaller, larger, a_little_smaller})
    memory.give_back(block);
}

TEST(PixelMemory, ReusedMemoryIsZeroedOnRequest) {
  PixelMemory memory;
  const auto used = memory.take(kMegabyte, Contents::Zeros);
  std::memset(used.bytes, 0xee, used.size);
  memory.give_back(used);
  const auto block = memory.take(kMegabyte, Contents::Zeros);
  EXPECT_TRUE(std::all_of(block.bytes, block.bytes + kMegabyte, [](auto byte) { return !byte; }));
  memory.give_back(block);
}

TEST(PixelMemory, KeepsNoMoreThanItsLimit) {
  PixelMemory memory;
  PixelMemory::Block blocks[40];
  for (auto& block : blocks)
    block = memory.take(kMegabyte, Contents::Anything);
  for (const auto& block : blocks)
    memory.give_back(block);
  EXPECT_EQ(memory.kept(), PixelMemory::kMostKept);
}

TEST(PixelMemory, ANewBlockHasAllItsPages) {
  PixelMemory memory;
  const auto block = memory.take(4 * kMegabyte, Contents::Anything);
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto address = reinterpret_cast<std::uintptr_t>(block.bytes);
  const std::uintptr_t first = (address + page - 1) / page * page;
  std::vector<unsigned char> present((address + block.size - first) / page);
  ASSERT_EQ(mincore(reinterpret_cast<void*>(first), present.size() * page, present.data()), 0);
  EXPECT_TRUE(std::all_of(present.begin(), present.end(), [](auto one) { return one & 1; }));
  memory.give_back(block);
}

TEST(PixelMemory, SmallBlocksAreNotKept) {
  PixelMemory memory;
  memory.give_back(memory.take(PixelMemory::kLeastKept - 1, Contents::Anything));
  EXPECT_EQ(memory.kept(), 0U);
}

TEST(PixelMemory, AVectorOfPixelsReturnsItsMemory) {
  std::size_t before = 0;
  {
    const std::vector<std::uint32_t, PixelAllocator<std::uint32_t>> pixels(kMegabyte, 7);
    before = pixel_memory().kept();
    EXPECT_EQ(pixels.back(), 7U);
  }
  EXPECT_EQ(pixel_memory().kept(), before + kMegabyte * sizeof(std::uint32_t));
}

TEST(PixelMemory, ASurfaceReturnsItsMemoryWithTheLastReference) {
  Surface surface = make_surface(750, 1000);
  Surface shared = surface;
  const std::size_t before = pixel_memory().kept();
  surface = {};
  EXPECT_EQ(pixel_memory().kept(), before);
  shared = {};
  EXPECT_GE(pixel_memory().kept(), before + std::size_t{750} * 1000 * 4);
}

TEST(PixelMemory, ANewSurfaceIsTransparentEvenInReusedMemory) {
  for (int round = 0; round < 2; ++round) {
    const Surface surface = make_surface(600, 600);
    auto* const bytes = cairo_image_surface_get_data(surface.get());
    EXPECT_TRUE(std::all_of(bytes, bytes + 600 * 600 * 4, [](auto byte) { return !byte; }));
    const Drawing drawing = draw_on(surface);
    cairo_set_source_rgb(drawing.get(), 1, 1, 1);
    cairo_paint(drawing.get());
    cairo_surface_flush(surface.get());
  }
}

TEST(PixelMemory, ASurfaceOfAnImpossibleSizeHasAnErrorStatus) {
  EXPECT_NE(cairo_surface_status(make_surface(40'000, 40).get()), CAIRO_STATUS_SUCCESS);
}

}  // namespace
}  // namespace host::quartzcore
