#include <memory>

#include "host/quartzcore/layers/layer_changes.h"
#include "tests/host/quartzcore/compositor_fixture.h"

namespace host::test {
namespace {

using quartzcore::Surface;

constexpr std::uint32_t kGreen = 0xff00ff00;

/// A picture of one colour whose pixels arrive when the test says so.
class SlowPixels final : public quartzcore::PixelSource {
 public:
  explicit SlowPixels(std::uint32_t color) : color_(color) {}

  Surface pixels() override {
    return quartzcore::image_of(quartzcore::object_of(CompositorTest::image_of_color(4, 4, color_)))
        ->surface();
  }
  Surface pixels_for_frame() override {
    ++requests;
    return is_awaited_ || is_broken_ ? Surface() : pixels();
  }
  bool is_awaited() const override { return is_awaited_; }
  quartzcore::Opacity opacity() const override {
    return is_awaited_ || is_broken_ ? quartzcore::Opacity::Translucent
                                     : quartzcore::Opacity::Opaque;
  }
  std::uint64_t revision() const override { return is_awaited_ ? 0 : 1; }

  void arrive() { is_awaited_ = false, quartzcore::note_layer_change(); }
  void fail() { is_broken_ = true, arrive(); }

  int requests = 0;

 private:
  std::uint32_t color_;
  bool is_awaited_ = true;
  bool is_broken_ = false;
};

struct ShownPicturesTest : CompositorTest {
  ShownPicturesTest() : cover(layer_at({0, 0, 4, 4})) {
    root.addSublayer(cover);
    show(red);
    red->arrive();
    render();
  }

  void show(const std::shared_ptr<SlowPixels>& pixels) {
    CGImageRef image = quartzcore::promise_image(4, 4, pixels, quartzcore::ByteOrder::BlueFirst);
    cover.setContents(quartzcore::object_of(image));
    objc::send<>(quartzcore::object_of(image), "release"_sel);
  }
  std::uint32_t shown() {
    render();
    return pixel(2, 2);
  }

  const CALayer cover;
  const std::shared_ptr<SlowPixels> red = std::make_shared<SlowPixels>(kRed);
  const std::shared_ptr<SlowPixels> green = std::make_shared<SlowPixels>(kGreen);
};

TEST_F(ShownPicturesTest, APictureStaysUntilThePixelsOfTheNextAreThere) {
  ASSERT_EQ(shown(), kRed);
  show(green);
  EXPECT_EQ(shown(), kRed);
  EXPECT_GT(green->requests, 0) << "it is asked for, though not painted";
  EXPECT_EQ(shown(), kRed) << "for as many frames as it takes";
  green->arrive();
  EXPECT_EQ(shown(), kGreen);
}

TEST_F(ShownPicturesTest, SongsMayBeSkippedBeforeTheirPictureIsThere) {
  const auto skipped = std::make_shared<SlowPixels>(0xffffff00);
  show(skipped);
  EXPECT_EQ(shown(), kRed);
  show(green);
  EXPECT_EQ(shown(), kRed);
  skipped->arrive();
  EXPECT_EQ(shown(), kRed);
  green->arrive();
  EXPECT_EQ(shown(), kGreen);
}

TEST_F(ShownPicturesTest, APictureThatCannotBeMadeShowsWhatIsBehind) {
  show(green);
  EXPECT_EQ(shown(), kRed);
  green->fail();
  EXPECT_EQ(shown(), kBlue);
}

TEST_F(ShownPicturesTest, ALayerThatHasMovedShowsNothingOfItsEarlierPlace) {
  cover.setFrame({1, 0, 4, 4});
  show(green);
  EXPECT_EQ(shown(), kBlue);
  green->arrive();
  EXPECT_EQ(shown(), kGreen);
}

TEST_F(ShownPicturesTest, NoPictureReplacesAPictureAtOnce) {
  cover.setContents(nil);
  EXPECT_EQ(shown(), kBlue);
  show(green);
  EXPECT_EQ(shown(), kBlue) << "the red one has gone";
}

TEST_F(ShownPicturesTest, ALayerThatWasHiddenHasNoEarlierPicture) {
  cover.setHidden(true);
  EXPECT_EQ(shown(), kBlue);
  show(green);
  cover.setHidden(false);
  EXPECT_EQ(shown(), kBlue);
}

TEST_F(ShownPicturesTest, AnEarlierPictureIsReleasedOnceTheNextIsThere) {
  std::weak_ptr<SlowPixels> before;
  {
    const objc::AutoreleasePool pool;
    const auto pixels = std::make_shared<SlowPixels>(kRed);
    before = pixels;
    show(pixels);
    pixels->arrive();
    ASSERT_EQ(shown(), kRed);
    show(green);
    ASSERT_EQ(shown(), kRed);
  }
  EXPECT_FALSE(before.expired());
  {
    const objc::AutoreleasePool pool;
    green->arrive();
    ASSERT_EQ(shown(), kGreen);
  }
  EXPECT_TRUE(before.expired());
}

}  // namespace
}  // namespace host::test
