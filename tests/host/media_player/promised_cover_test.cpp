#include <gmock/gmock.h>
#include <poll.h>

#include <filesystem>

#include "host/media/picture.h"
#include "host/media_player/cover_store.h"
#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/service/layer_service.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/QuartzCore/CALayer.h"
#include "tests/host/media_player/media_player_test.h"

namespace {

using host::media_player::MediaService;
using host::test::text;

constexpr int kSide = 32;
constexpr int kLongestWaitMilliseconds = 30'000;

// Covers on a screen of 32 by 32 pixels.
class PromisedCovers : public host::test::MediaPlayerTest {
 protected:
  PromisedCovers() : service_(loop), screen_(kSide, kSide, 1) {
    root_ = objc::Ref<CALayer>::retain(CALayer::layer());
    root_->setFrame({0, 0, kSide, kSide});
  }

  host::media_player::ArtworkImages& images() const { return MediaService::current()->artwork(); }

  static UIImage cover_of(MPMediaItem item, double side) {
    const auto artwork =
        objc::cast<MPMediaItemArtwork>(item.valueForProperty(MPMediaItemPropertyArtwork));
    return artwork.imageWithSize({side, side});
  }

  void show(UIImage image) const { root_->setContents(image.CGImage()); }

  std::size_t draw() {
    const CALayer roots[] = {root_.get()};
    return screen_.render(roots, loop.now()).size();
  }

  std::uint32_t pixel_in_the_middle() const {
    cairo_surface_t* surface = screen_.surface().get();
    const unsigned char* row =
        cairo_image_surface_get_data(surface) + cairo_image_surface_get_stride(surface) * kSide / 2;
    return reinterpret_cast<const std::uint32_t*>(row)[kSide / 2] & 0xffffff;
  }

  void start_in_real_time() const {
    auto in_real_time = options();
    in_real_time.pace = host::media::PlayerPace::real;
    in_real_time.first_scan = host::media_player::FirstScan::kBeforeStart;
    MediaService::start(in_real_time);
  }

  template <class Condition>
  bool wait_until(Condition is_true) {
    for (int waited = 0; !is_true() && waited < kLongestWaitMilliseconds; waited += 5) {
      pollfd pause{-1, 0, 0};
      ::poll(&pause, 1, 5);
      loop.run_ready();
    }
    return is_true();
  }

  host::quartzcore::LayerService service_;
  host::quartzcore::Compositor screen_;
  objc::Ref<CALayer> root_;
};

TEST_F(PromisedCovers, RequestingAnImageDecodesNothingUntilItIsDrawn) {
  start();
  const UIImage image = cover_of(item("Alpha"), 16);
  EXPECT_EQ(image.size().width, 16);
  EXPECT_EQ(image.size().height, 8);
  show(image);
  EXPECT_EQ(images().decode_count(), 0u);
  draw();
  EXPECT_EQ(images().decode_count(), 1u);
  EXPECT_NEAR(pixel_in_the_middle() >> 16, 0xff, 3);
}

TEST_F(PromisedCovers, HaveThePixelsOfThePictureDecodedAtOnce) {
  start();
  const auto bytes = media_tests::jpeg_picture(64, 32, 0xff0000);
  const auto expected = host::media::decode_picture(bytes, 32);
  const UIImage image = cover_of(item("Alpha"), 16);
  const auto data = CGDataProviderCopyData(CGImageGetDataProvider(image.CGImage()));
  ASSERT_EQ(static_cast<std::size_t>(CFDataGetLength(data)), expected->byte_count());
  const unsigned char* pixel = CFDataGetBytePtr(data);
  for (const std::uint32_t wanted : expected->pixels) {
    ASSERT_EQ(pixel[0], wanted >> 16 & 0xff);
    ASSERT_EQ(pixel[1], wanted >> 8 & 0xff);
    ASSERT_EQ(pixel[2], wanted & 0xff);
    pixel += 4;
  }
  CFRelease(data);
}

TEST_F(PromisedCovers, StayWithinTheirMemoryLimitAndAreDecodedAgain) {
  constexpr int covers = 12;
  for (int i = 0; i < covers; ++i) {
    host::media::SongTags tags;
    tags.title = "Big " + std::to_string(i);
    media_tests::write_song(song_path(tags.title + ".flac"), tags,
                            media_tests::jpeg_picture(1000, 1000, static_cast<unsigned>(i) * 20),
                            0.1);
  }
  start();
  const auto draw_cover = [this](int i) {
    show(cover_of(item(("Big " + std::to_string(i)).c_str()), 500));
    draw();
  };
  for (int i = 0; i < covers; ++i)
    draw_cover(i);
  EXPECT_EQ(images().decode_count(), static_cast<std::size_t>(covers));
  EXPECT_LE(images().bytes_kept(), host::media_player::CoverStore::kMostBytes);
  screen_.invalidate();
  const auto again = [&](int i) {
    const UIImage image = cover_of(item(("Big " + std::to_string(i)).c_str()), 500);
    CFRelease(CGDataProviderCopyData(CGImageGetDataProvider(image.CGImage())));
  };
  again(covers - 1);
  EXPECT_EQ(images().decode_count(), static_cast<std::size_t>(covers));
  again(0);
  EXPECT_EQ(images().decode_count(), static_cast<std::size_t>(covers) + 1);
}

TEST_F(PromisedCovers, BrokenOnesShowWhatIsBehindAndAreLoggedOnce) {
  media_tests::write_bytes(folder_ / "music/cover.jpg",
                           media_tests::as_text(media_tests::jpeg_picture(64, 64, 0xff)));
  start();
  const UIImage image = cover_of(item("Bravo"), 16);
  ASSERT_TRUE(image);
  media_tests::write_bytes(folder_ / "music/cover.jpg", "broken meanwhile");
  const media_tests::CapturedLog log;
  root_->setBackgroundColor(CGColorCreateGenericRGB(0, 1, 0, 1));
  show(image);
  draw();
  draw();
  EXPECT_EQ(pixel_in_the_middle(), 0x00ff00u);
  EXPECT_EQ(draw(), 0u);
  EXPECT_FALSE(cover_of(item("Bravo"), 8));
  EXPECT_EQ(log.count("cover.jpg cannot be shown"), 1);
}

TEST_F(PromisedCovers, KeepTheirAspectRatioWhenTheFileIsReplaced) {
  media_tests::write_bytes(folder_ / "music/cover.jpg",
                           media_tests::as_text(media_tests::jpeg_picture(64, 64, 0xff)));
  start();
  const UIImage image = cover_of(item("Bravo"), 16);
  media_tests::write_bytes(folder_ / "music/cover.jpg",
                           media_tests::as_text(media_tests::jpeg_picture(10, 40, 0xff)));
  const auto data = CGDataProviderCopyData(CGImageGetDataProvider(image.CGImage()));
  EXPECT_EQ(CFDataGetLength(data), 32 * 32 * 4);
  CFRelease(data);
}

TEST_F(PromisedCovers, OutliveTheirMediaService) {
  start();
  const auto image = objc::Ref<UIImage>::retain(cover_of(item("Alpha"), 16));
  MediaService::stop();
  show(image.get());
  draw();
  EXPECT_NEAR(pixel_in_the_middle() >> 16, 0xff, 3);
}

TEST_F(PromisedCovers, InRealTimeAFrameDoesNotWaitAndTheLayerIsRepaintedOnce) {
  start_in_real_time();
  root_->setBackgroundColor(CGColorCreateGenericRGB(0, 1, 0, 1));
  show(cover_of(item("Alpha"), 16));
  EXPECT_GT(draw(), 0u);
  EXPECT_EQ(images().decode_count(), 0u);
  EXPECT_EQ(pixel_in_the_middle(), 0x00ff00u);
  EXPECT_EQ(draw(), 0u);
  ASSERT_TRUE(wait_until([this] { return images().decode_count() == 1; }));
  EXPECT_GT(draw(), 0u);
  EXPECT_NEAR(pixel_in_the_middle() >> 16, 0xff, 3);
  EXPECT_EQ(draw(), 0u);
}

TEST_F(PromisedCovers, InRealTimeAReadOfTheBytesWaits) {
  start_in_real_time();
  const UIImage image = cover_of(item("Alpha"), 16);
  const auto data = CGDataProviderCopyData(CGImageGetDataProvider(image.CGImage()));
  EXPECT_GT(CFDataGetBytePtr(data)[0], 240);
  CFRelease(data);
}

TEST_F(PromisedCovers, InRealTimeTheSongsCoverIsPrefetchedAndKept) {
  start_in_real_time();
  play("Alpha");
  ASSERT_TRUE(now_playing().currentNowPlayingArtwork());
  EXPECT_TRUE(wait_until([this] { return images().decode_count() == 1; }));
  show(now_playing().currentNowPlayingArtwork());
  draw();
  EXPECT_NEAR(pixel_in_the_middle() >> 16, 0xff, 3);
}

TEST_F(PromisedCovers, StoppingDuringDecodingLosesNoPicture) {
  start_in_real_time();
  show(cover_of(item("Alpha"), 16));
  draw();
  MediaService::stop();
  draw();
  EXPECT_NEAR(pixel_in_the_middle() >> 16, 0xff, 3);
}

}  // namespace
