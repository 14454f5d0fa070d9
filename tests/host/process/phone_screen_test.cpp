#include "host/process/phone_screen.h"

#include <cairo.h>

#include <cmath>
#include <filesystem>
#include <vector>

#include "host/quartzcore/layers/screen_density.h"
#include "host/quartzcore/pixels/surface.h"
#include "host/runtime/device_model.h"
#include "tests/support/phone_fixture.h"

namespace host::test {
namespace {

/// A screen that notes the widths of its pictures and what has changed in the last one.
struct SizedScreen final : screen::Screen {
  void show(const screen::Picture& picture, std::span<const screen::PixelRect> damage) override {
    widths.push_back(picture.width);
    damaged = damage.front();
  }
  std::optional<double> pixels_per_point() const override { return wanted; }

  std::optional<double> wanted;
  std::vector<int> widths;
  screen::PixelRect damaged;
};

struct PhoneScreens : PhoneTest {
  PhoneScreens() { launch(); }
  ~PhoneScreens() override { quartzcore::set_screen_density(1); }

  SizedScreen screen;
};

TEST_F(PhoneScreens, DrawWithThePixelsOfTheScreen) {
  process::PhoneScreen phone(loop, screen);
  int rescaled = 0;
  phone.on_rescale([&] { ++rescaled; });
  settle();
  const auto device_width = static_cast<int>(current_device().width * current_device().scale);
  ASSERT_FALSE(screen.widths.empty());
  EXPECT_EQ(screen.widths.back(), device_width);
  EXPECT_EQ(rescaled, 0);

  screen.wanted = 1;
  settle();
  const auto points = static_cast<int>(current_device().width);
  EXPECT_EQ(screen.widths.back(), points);
  EXPECT_EQ(screen.damaged.width, points) << "all of the picture is new";
  EXPECT_EQ(rescaled, 1);
  EXPECT_EQ(quartzcore::screen_density(), 1 / current_device().scale);
}

// A mouse may report a thousand times a second.
TEST_F(PhoneScreens, DrawAtMostOnePictureAFrame) {
  process::PhoneScreen phone(loop, screen);
  settle();
  const UIWindow window = UIWindow::alloc().initWithFrame(CGRect(0, 0, 100, 100));
  window.setHidden(false);
  settle();
  const std::size_t before = screen.widths.size();
  const auto change = [&](int i) {
    window.setBackgroundColor(UIColor::colorWithWhite(i / 32.0, 1));
    advance(RunLoop::kFrame / 16);
  };
  change(1);
  EXPECT_EQ(screen.widths.size(), before + 1) << "at rest, a change is drawn at once";
  for (int i = 2; i <= 12; ++i)
    change(i);
  EXPECT_EQ(screen.widths.size(), before + 1);
  advance(RunLoop::kFrame);
  EXPECT_EQ(screen.widths.size(), before + 2) << "the last change is drawn with the next frame";
  EXPECT_FALSE(loop.wants_frames());
  settle();
  EXPECT_EQ(screen.widths.size(), before + 2);
  window.setHidden(true);
}

TEST_F(PhoneScreens, AChangeRightAfterAPictureMayOutliveTheScreen) {
  {
    process::PhoneScreen phone(loop, screen);
    settle();
    const UIWindow window = UIWindow::alloc().initWithFrame(CGRect(0, 0, 100, 100));
    window.setBackgroundColor(UIColor::blueColor());
    window.setHidden(false);
    advance(0);
    window.setBackgroundColor(UIColor::redColor());
    advance(0);
    EXPECT_TRUE(loop.wants_frames());
    window.setHidden(true);
  }
  EXPECT_FALSE(loop.wants_frames());
}

TEST_F(PhoneScreens, ScreenshotsHaveTheDevicesPixels) {
  screen.wanted = 0.7;
  process::PhoneScreen phone(loop, screen);
  settle();
  const std::string file = device / "shot.png";
  const double density = quartzcore::screen_density();
  const auto write = [&](const screen::Picture& picture) {
    return screen::write_png(picture, file);
  };
  ASSERT_EQ(phone.with_picture(write), std::nullopt);
  cairo_surface_t* const shot = cairo_image_surface_create_from_png(file.c_str());
  EXPECT_EQ(cairo_image_surface_get_width(shot), current_device().width * current_device().scale);
  cairo_surface_destroy(shot);
  EXPECT_EQ(quartzcore::screen_density(), density);
  EXPECT_NEAR(phone.compositor().scale(), 0.7, 1e-9);
}

}  // namespace
}  // namespace host::test
