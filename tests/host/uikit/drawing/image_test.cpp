#include "host/quartzcore/drawing/image.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "host/runtime/device_model.h"
#include "objc/ref.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/Foundation/NSIndexPath.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImage.h"
#include "tests/host/uikit/drawing/jpeg_file.h"
#include "tests/host/uikit/drawing/png_file.h"
#include "tests/host/uikit/support/drawing_test.h"

namespace {

namespace quartzcore = host::quartzcore;
using host::test::write_png;
using host::test::write_sideways_jpeg;
using quartzcore::image_of;

constexpr std::uint32_t kGrey = 0xff808080;

class Image : public host::test::DrawingTest {
 protected:
  Image() {
    folder_ = std::filesystem::temp_directory_path() / ("images-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
  }
  ~Image() override {
    std::filesystem::remove_all(folder_);
    use_device("iPhone7,2");
  }

  void use_device(const char* identifier) {
    host::set_current_device(*host::device_model(identifier));
  }
  std::string path(const char* name) const { return folder_ / name; }
  NSString platform_path(const char* name) const {
    return NSString::stringWithUTF8String(path(name).c_str());
  }
  /// An image with no other owner.
  objc::Ref<UIImage> load(const char* name) const {
    return objc::adopt(UIImage::alloc().initWithContentsOfFile(platform_path(name)));
  }
  static cairo_surface_t* surface_of(UIImage image) {
    return image_of(image.CGImage())->surface().get();
  }
  static std::uint32_t pixel_of(UIImage image) {
    const quartzcore::Surface pixels = image_of(image.CGImage())->surface();
    return *reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(pixels.get()));
  }

 private:
  std::filesystem::path folder_;
};

TEST_F(Image, TakesTheVariantForTheScreen) {
  write_png(path("Play.png"), 10, 10);
  write_png(path("Play@2x.png"), 20, 20);
  write_png(path("Play@3x.png"), 30, 30);

  const UIImage on_two = UIImage::imageWithContentsOfFile(platform_path("Play.png"));
  use_device("iPhone7,1");
  const UIImage on_three = UIImage::imageWithContentsOfFile(platform_path("Play.png"));

  EXPECT_EQ(on_two.scale(), 2);
  EXPECT_EQ(on_two.size(), (CGSize{10, 10}));
  EXPECT_EQ(on_three.scale(), 3);
  EXPECT_EQ(on_three.size(), (CGSize{10, 10}));
}

TEST_F(Image, TakesACoarserVariantRatherThanNone) {
  write_png(path("Play.png"), 10, 12);
  EXPECT_EQ(UIImage::imageWithContentsOfFile(platform_path("Play.png")).size(), (CGSize{10, 12}));
}

TEST_F(Image, APathThatNamesItsScaleMeansThatFile) {
  write_png(path("search@2x.png"), 40, 20);
  use_device("iPhone7,1");

  const UIImage image = UIImage::imageWithContentsOfFile(platform_path("search@2x.png"));

  EXPECT_EQ(image.scale(), 2);
  EXPECT_EQ(image.size(), (CGSize{20, 10}));
}

TEST_F(Image, AMissingOrInvalidFileReturnsNil) {
  std::ofstream(path("text.png")) << "this is no picture";

  EXPECT_FALSE(UIImage::imageWithContentsOfFile(platform_path("missing.png")));
  EXPECT_FALSE(UIImage::imageWithContentsOfFile(platform_path("text.png")));
  EXPECT_FALSE(UIImage::imageWithContentsOfFile(nil));
  EXPECT_FALSE(UIImage::imageWithData(NSData::dataWithBytes("nonsense", 8)));
  EXPECT_FALSE(UIImage::imageWithCGImage(nullptr));
}

TEST_F(Image, TheFileIsDecodedWhenItIsFirstDrawn) {
  write_png(path("late.png"), 10, 12);
  const UIImage image = UIImage::imageWithContentsOfFile(platform_path("late.png"));

  EXPECT_EQ(image.size(), (CGSize{10, 12}));
  EXPECT_EQ(CGImageGetWidth(image.CGImage()), 10u);
  // Only the pixels tell that none of them is transparent.
  EXPECT_FALSE(image_of(image.CGImage())->is_opaque());
  pixel_of(image);
  EXPECT_TRUE(image_of(image.CGImage())->is_opaque());
}

TEST_F(Image, AFileThatIsGoneWhenItIsDrawnIsShown) {
  write_png(path("late.png"), 10, 10);
  const UIImage image = UIImage::imageWithContentsOfFile(platform_path("late.png"));

  std::filesystem::remove(path("late.png"));

  EXPECT_EQ(pixel_of(image), kGrey);
  EXPECT_FALSE(UIImage::imageWithContentsOfFile(platform_path("late.png")));
}

TEST_F(Image, AFileIsDecodedOnceForAllWhoLoadIt) {
  write_png(path("shared.png"), 10, 10);
  const objc::Ref first = load("shared.png");
  const objc::Ref second = load("shared.png");

  EXPECT_EQ(surface_of(first.get()), surface_of(second.get()));
  EXPECT_EQ(image_of(first->CGImage())->serial(), image_of(second->CGImage())->serial());
}

TEST_F(Image, ASmallFileStaysDecodedForTheNextWhoLoadsIt) {
  write_png(path("again.png"), 10, 10);
  const quartzcore::Surface pixels = image_of(load("again.png")->CGImage())->surface();

  EXPECT_EQ(surface_of(load("again.png").get()), pixels.get());
}

TEST_F(Image, PicturesThatNobodyHasDoNotFillTheMemory) {
  constexpr int kPictures = 40;
  constexpr int kSide = 256;  // 256 kB of pixels
  std::vector<quartzcore::Surface> seen;
  for (int i = 0; i < kPictures; ++i) {
    const std::string name = std::to_string(i) + ".png";
    write_png(path(name.c_str()), kSide, kSide);
    seen.push_back(image_of(load(name.c_str())->CGImage())->surface());
  }

  const auto is_kept = [](const quartzcore::Surface& pixels) {
    return cairo_surface_get_reference_count(pixels.get()) > 1;
  };
  EXPECT_FALSE(is_kept(seen.front()));
  EXPECT_LE(std::count_if(seen.begin(), seen.end(), is_kept), kPictures / 2);
}

TEST_F(Image, AFileThatHasChangedIsAnotherPicture) {
  write_png(path("changes.png"), 10, 10);
  const objc::Ref before = load("changes.png");
  EXPECT_EQ(pixel_of(before.get()), kGrey);

  write_png(path("changes.png"), 10, 10, 1);
  const objc::Ref after = load("changes.png");

  EXPECT_EQ(pixel_of(after.get()), 0xffffffffu);
  EXPECT_EQ(pixel_of(before.get()), kGrey);
}

TEST_F(Image, AChangeUnderTheSameStampIsSeen) {
  write_png(path("quick.png"), 10, 10);
  const auto time = std::filesystem::last_write_time(path("quick.png"));
  const objc::Ref before = load("quick.png");
  write_png(path("quick.png"), 10, 10, 1);
  std::filesystem::last_write_time(path("quick.png"), time);

  EXPECT_EQ(pixel_of(load("quick.png").get()), 0xffffffffu);
}

TEST_F(Image, ADamagedFileHasASizeAndNoPixels) {
  write_png(path("damaged.png"), 64, 32);
  std::fstream(path("damaged.png"), std::ios::in | std::ios::out | std::ios::binary)
      .seekp(60)
      .write("no chunk of pixels at all", 25);

  const UIImage image = UIImage::imageWithContentsOfFile(platform_path("damaged.png"));

  EXPECT_EQ(image.size(), (CGSize{64, 32}));
  EXPECT_EQ(pixel_of(image), 0u);
}

TEST_F(Image, AnEmptyFileIsNoPicture) {
  std::ofstream(path("empty.png")).flush();
  EXPECT_FALSE(UIImage::imageWithContentsOfFile(platform_path("empty.png")));
}

TEST_F(Image, APhotographOnItsSideHasTheSizeThatItIsShownWith) {
  write_sideways_jpeg(path("photo.jpg"), 30, 10);
  const UIImage image = UIImage::imageWithContentsOfFile(platform_path("photo.jpg"));

  EXPECT_EQ(image.size(), (CGSize{10, 30}));
  EXPECT_EQ(cairo_image_surface_get_width(surface_of(image)), 10);
}

TEST_F(Image, ATemplateSharesThePixels) {
  write_png(path("Play.png"), 10, 10);
  const UIImage image = UIImage::imageWithContentsOfFile(platform_path("Play.png"));

  const UIImage stencil = image.imageWithRenderingMode(UIImageRenderingModeAlwaysTemplate);

  EXPECT_EQ(stencil.renderingMode(), UIImageRenderingModeAlwaysTemplate);
  EXPECT_EQ(image.renderingMode(), UIImageRenderingModeAutomatic);
  EXPECT_EQ(stencil.CGImage(), image.CGImage());
}

TEST_F(Image, ASidewaysPictureHasWidthAndHeightSwapped) {
  write_png(path("wide.png"), 30, 10);
  const CGImageRef pixels = UIImage::imageWithContentsOfFile(platform_path("wide.png")).CGImage();

  const UIImage turned = UIImage::imageWithCGImage(pixels, 1, UIImageOrientationRight);

  EXPECT_EQ(turned.size(), (CGSize{10, 30}));
}

TEST_F(Image, AnImageContextReturnsWhatWasDrawn) {
  UIGraphicsBeginImageContextWithOptions({8, 4}, NO, 2);
  UIColor::redColor().setFill();
  UIRectFill({0, 0, 4, 4});
  const UIImage drawn = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();

  EXPECT_EQ(drawn.size(), (CGSize{8, 4}));
  EXPECT_EQ(drawn.scale(), 2);
  EXPECT_EQ(CGImageGetWidth(drawn.CGImage()), 16u);
  EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
  EXPECT_FALSE(UIGraphicsGetImageFromCurrentImageContext());
}

TEST_F(Image, DrawnIntoOnePixelItIsItsAverage) {
  UIGraphicsBeginImageContextWithOptions({64, 64}, YES, 1);
  UIColor::whiteColor().setFill();
  UIRectFill({0, 0, 64, 16});
  const UIImage quarter_white = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();

  UIGraphicsBeginImageContext({1, 1});
  quarter_white.drawInRect({0, 0, 1, 1}, kCGBlendModeCopy, 1);
  const auto* pixel =
      static_cast<const unsigned char*>(CGBitmapContextGetData(UIGraphicsGetCurrentContext()));
  const int blue = pixel[0];
  UIGraphicsEndImageContext();

  EXPECT_NEAR(blue, 64, 3);
}

TEST_F(Image, ContextsNest) {
  UIGraphicsBeginImageContext({1, 1});
  const CGContextRef outer = UIGraphicsGetCurrentContext();
  UIGraphicsBeginImageContext({2, 2});
  EXPECT_NE(UIGraphicsGetCurrentContext(), outer);
  UIGraphicsEndImageContext();
  EXPECT_EQ(UIGraphicsGetCurrentContext(), outer);
  UIGraphicsEndImageContext();
}

TEST_F(Image, AnIndexPathNamesRowAndSection) {
  const NSIndexPath path = NSIndexPath::indexPathForRow(7, 2);

  EXPECT_EQ(path.row(), 7);
  EXPECT_EQ(path.section(), 2);
  EXPECT_TRUE(path.isEqual(NSIndexPath::indexPathForRow(7, 2)));
  EXPECT_FALSE(path.isEqual(NSIndexPath::indexPathForRow(2, 7)));
}

}  // namespace
