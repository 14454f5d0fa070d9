#include "host/application/surface/shared_surface.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>

namespace {

using namespace host;
using namespace host::application;

constexpr SurfaceSize kSize{6, 4, 24};

Descriptor memory_of(const SharedSurface& surface) {
  return Descriptor(dup(surface.descriptor()));
}

TEST(SharedSurface, ShowsTheHomeScreenWhatTheApplicationDraws) {
  const auto home = SharedSurface::make(kSize);
  ASSERT_TRUE(home);
  const auto application = SharedSurface::open(memory_of(*home), kSize);
  ASSERT_TRUE(application);
  application->writable_buffer(0)[5] = 7;
  application->writable_buffer(1)[kSize.buffer_bytes() - 1] = 9;
  EXPECT_EQ(home->buffer(0)[5], 7);
  EXPECT_EQ(home->buffer(1)[kSize.buffer_bytes() - 1], 9);
  EXPECT_EQ(home->buffer(1)[5], 0);
}

TEST(SharedSurface, CannotBeResized) {
  const auto home = SharedSurface::make(kSize);
  const Descriptor theirs = memory_of(*home);
  EXPECT_EQ(ftruncate(theirs.get(), 0), -1);
  EXPECT_EQ(errno, EPERM);
  EXPECT_EQ(ftruncate(theirs.get(), 1 << 20), -1);
  EXPECT_EQ(errno, EPERM);
  EXPECT_EQ(home->buffer(1)[kSize.buffer_bytes() - 1], 0);
}

TEST(SharedSurface, IsNotMadeInSizesThatNoScreenHas) {
  EXPECT_FALSE(SharedSurface::make({0, 4, 24}));
  EXPECT_FALSE(SharedSurface::make({6, -4, 24}));
  EXPECT_FALSE(SharedSurface::make({6, 4, 20}));
  EXPECT_FALSE(SharedSurface::make({6, 4, 26}));
  EXPECT_FALSE(SharedSurface::make({6, 1 << 20, 24}));
}

TEST(SharedSurface, IsNotOpenedOnMemoryThatIsTooSmallOrNotSealed) {
  const auto home = SharedSurface::make(kSize);
  EXPECT_FALSE(SharedSurface::open(memory_of(*home), {6, 5, 24}));
  EXPECT_FALSE(SharedSurface::open(Descriptor(), kSize));
  Descriptor loose(memfd_create("loose", MFD_CLOEXEC | MFD_ALLOW_SEALING));
  ASSERT_EQ(ftruncate(loose.get(), 4096), 0);
  EXPECT_FALSE(SharedSurface::open(std::move(loose), kSize));
}

}  // namespace
