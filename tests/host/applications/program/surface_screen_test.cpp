#include "host/applications/program/surface_screen.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <vector>

namespace {

using namespace host;
using namespace host::application;

constexpr int kWidth = 8;
constexpr int kHeight = 6;
constexpr SurfaceSize kSize{kWidth, kHeight, kWidth * 4};

/// A picture to draw on, and the home screen's end of the surface.
class SurfaceScreens : public testing::Test {
 protected:
  SurfaceScreens() : pixels_(kWidth * kHeight) {}

  void attach() {
    home_ = SharedSurface::make(kSize);
    screen_.attach(SharedSurface::open(Descriptor(dup(home_->descriptor())), kSize));
  }
  void draw(int x, int y, std::uint32_t color) {
    pixels_[static_cast<std::size_t>(y * kWidth + x)] = color;
    const screen::PixelRect damage[] = {{x, y, 1, 1}};
    screen_.show({reinterpret_cast<unsigned char*>(pixels_.data()), kWidth, kHeight, kWidth * 4},
                 damage);
  }
  std::uint32_t shown(int buffer, int x, int y) const {
    return reinterpret_cast<const std::uint32_t*>(home_->buffer(buffer))[y * kWidth + x];
  }

  std::vector<std::uint32_t> pixels_;
  std::vector<NewFrame> frames_;
  SurfaceScreen screen_{[this](const NewFrame& frame) { frames_.push_back(frame); }};
  std::shared_ptr<const SharedSurface> home_;
};

TEST_F(SurfaceScreens, AnnounceOnlyWhatHasChanged) {
  attach();
  screen_.set_in_front(true);
  draw(3, 2, 0xFF0000FF);
  ASSERT_EQ(frames_.size(), 1u);
  EXPECT_EQ(frames_[0].x, 3);
  EXPECT_EQ(frames_[0].y, 2);
  EXPECT_EQ(frames_[0].width, 1);
  EXPECT_EQ(frames_[0].height, 1);
  EXPECT_EQ(shown(frames_[0].buffer, 3, 2), 0xFF0000FFu);
}

TEST_F(SurfaceScreens, HoldTheSecondFrameUntilTheFirstIsTaken) {
  attach();
  screen_.set_in_front(true);
  draw(0, 0, 1);
  draw(1, 1, 2);
  draw(5, 4, 3);
  EXPECT_EQ(frames_.size(), 1u);
  EXPECT_TRUE(screen_.waits_for_buffer());
  screen_.frame_taken();
  ASSERT_EQ(frames_.size(), 2u);
  EXPECT_FALSE(screen_.waits_for_buffer());
  EXPECT_NE(frames_[0].buffer, frames_[1].buffer);
  EXPECT_EQ(frames_[1].width, 5);
  EXPECT_EQ(frames_[1].height, 4);
}

TEST_F(SurfaceScreens, NeverLeaveAnOldPixelInEitherBuffer) {
  attach();
  screen_.set_in_front(true);
  for (int i = 0; i < 6; ++i) {
    draw(i, i, static_cast<std::uint32_t>(100 + i));
    screen_.frame_taken();
    for (int before = 0; before <= i; ++before)
      EXPECT_EQ(shown(frames_.back().buffer, before, before), 100u + static_cast<unsigned>(before));
  }
}

TEST_F(SurfaceScreens, SendNothingWhileHidden) {
  attach();
  draw(0, 0, 1);
  EXPECT_TRUE(frames_.empty());
  screen_.set_in_front(true);
  ASSERT_EQ(frames_.size(), 1u);
  EXPECT_EQ(shown(frames_[0].buffer, 0, 0), 1u);
}

TEST_F(SurfaceScreens, FillTheTopLeftWithAPictureOfFewerPixels) {
  attach();
  screen_.set_in_front(true);
  EXPECT_EQ(screen_.pixels_per_point(), std::nullopt);
  draw(0, 0, 1);
  screen_.frame_taken();
  screen_.set_pixels_per_point(0.5);
  EXPECT_EQ(screen_.pixels_per_point(), 0.5);
  std::vector<std::uint32_t> small(4 * 3, 9);
  const screen::PixelRect damage[] = {{0, 0, 4, 3}};
  screen_.show({reinterpret_cast<unsigned char*>(small.data()), 4, 3, 4 * 4}, damage);
  ASSERT_EQ(frames_.size(), 2u);
  EXPECT_EQ(frames_[1].picture_width, 4);
  EXPECT_EQ(frames_[1].picture_height, 3);
  EXPECT_EQ(shown(frames_[1].buffer, 3, 2), 9u);
  EXPECT_EQ(shown(frames_[1].buffer, 4, 0), 0u);
}

TEST_F(SurfaceScreens, SendANewHomeScreenTheWholePicture) {
  attach();
  screen_.set_in_front(true);
  draw(2, 2, 5);
  screen_.detach();
  attach();
  ASSERT_EQ(frames_.size(), 2u);
  EXPECT_EQ(frames_[1].width, kWidth);
  EXPECT_EQ(frames_[1].height, kHeight);
  EXPECT_EQ(shown(frames_[1].buffer, 2, 2), 5u);
}

}  // namespace
