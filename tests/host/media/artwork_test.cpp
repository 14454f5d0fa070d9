#include <gtest/gtest.h>
#include <sys/resource.h>

#include "host/media/artwork_cache.h"
#include "host/media/picture.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;

namespace {

long peak_memory_kib() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

// A grey picture: tables of which every code is one bit, then scans without any.
std::vector<std::uint8_t> grey_jpeg(std::uint8_t coding, int width, int height, int scans) {
  std::vector<std::uint8_t> made = {0xff, 0xd8, 0xff, 0xdb, 0, 67, 0};
  const auto append = [&made](std::vector<std::uint8_t> bytes) {
    made.insert(made.end(), bytes.begin(), bytes.end());
  };
  const auto high = [](int number) { return static_cast<std::uint8_t>(number >> 8); };
  const auto low = [](int number) { return static_cast<std::uint8_t>(number); };
  append(std::vector<std::uint8_t>(64, 1));
  append(
      {0xff, coding, 0, 11, 8, high(height), low(height), high(width), low(width), 1, 1, 0x11, 0});
  for (const std::uint8_t table : {0x00, 0x10}) {
    append({0xff, 0xc4, 0, 20, table, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  }
  const bool is_progressive = coding == 0xc2;
  append({0xff, 0xda, 0, 8, 1, 1, 0, 0, low(is_progressive ? 0 : 63), 0, 0x3f});
  for (int scan = 1; scan < scans; ++scan)
    append({0xff, 0xda, 0, 8, 1, 1, 0, 1, 63, 0, 0x3f});
  append({0xff, 0xd9});
  return made;
}

Track track_with_picture(std::uint64_t key, std::string_view path) {
  Track track;
  track.artwork_key = key;
  track.picture_path = path;
  return track;
}

}  // namespace

TEST(Picture, IsScaledDownToTheRequestedSideAndNeverUp) {
  const auto large = decode_picture(jpeg_picture(400, 200, 0x4080c0), 100);
  ASSERT_TRUE(large);
  EXPECT_EQ(large->width, 100);
  EXPECT_EQ(large->height, 50);
  const auto small = decode_picture(png_picture(20, 10, 0x4080c0), 100);
  ASSERT_TRUE(small);
  EXPECT_EQ(small->width, 20);
  EXPECT_EQ(small->height, 10);
  EXPECT_EQ(small->pixels.size(), 200u);
  EXPECT_EQ(small->pixels[0], 0xff4080c0u);
}

TEST(Picture, OfTwentyThousandSquaredIsRefusedWithoutAllocating) {
  const auto promise = png_promise(20000, 20000);
  const long before = peak_memory_kib();
  EXPECT_FALSE(decode_picture(promise, 600));
  EXPECT_LT(peak_memory_kib() - before, 64 * 1024);
}

TEST(Picture, DamagedBytesAreRefused) {
  EXPECT_FALSE(decode_picture({}, 100));
  const std::string letter = "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>";
  EXPECT_FALSE(
      decode_picture({reinterpret_cast<const std::uint8_t*>(letter.data()), letter.size()}, 100));
}

TEST(Picture, ATruncatedOneIsShownUpToTheBreak) {
  const auto whole = png_picture(64, 64, 0x808080);
  int shown = 0;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto picture = decode_picture(std::span{whole}.first(size), 100);
    if (!picture) continue;
    ++shown;
    ASSERT_EQ(picture->pixels.size(), 64u * 64u);
    for (const std::uint32_t pixel : picture->pixels) {
      ASSERT_TRUE(pixel == 0xff808080u || pixel == 0xff000000u) << std::hex << pixel;
    }
  }
  EXPECT_GT(shown, 0);
}

TEST(Picture, AJpegCutAnywhereIsNeverFatal) {
  const auto whole = jpeg_picture(200, 200, 0x808080);
  ASSERT_TRUE(decode_picture(whole, 100));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto picture = decode_picture(std::span{whole}.first(size), 100);
    if (!picture) continue;
    EXPECT_EQ(picture->pixels.size(), 100u * 100u) << size << " of " << whole.size();
  }
}

// The decoder does not come to an end with this one.
TEST(Picture, AnArithmeticJpegIsRefused) {
  const auto jpeg = grey_jpeg(0xc9, 8, 2, 1);
  EXPECT_FALSE(decode_picture(jpeg, 100));
  EXPECT_FALSE(read_picture_header(jpeg).is_usable());
}

TEST(Picture, AJpegOfManyScansIsRefusedWhenTheyAreLarge) {
  EXPECT_FALSE(decode_picture(grey_jpeg(0xc2, 6000, 6000, 100'000), 100));
  EXPECT_TRUE(decode_picture(grey_jpeg(0xc2, 8, 8, 100), 100));
}

TEST(ArtworkCache, DecodesAPictureOnceForAllItsSongs) {
  const TemporaryFolder folder;
  const std::string path = folder / "cover.png";
  write_bytes(path, as_text(png_picture(50, 50, 0x112233)));
  ArtworkCache cache{1 << 20};
  const auto first = cache.picture(track_with_picture(5, path), 40);
  const auto second = cache.picture(track_with_picture(5, path), 40);
  ASSERT_TRUE(first);
  EXPECT_EQ(first, second);
  EXPECT_EQ(first->width, 40);
  EXPECT_EQ(cache.decode_count(), 1u);
  cache.picture(track_with_picture(5, path), 20);
  EXPECT_EQ(cache.decode_count(), 2u);
}

TEST(ArtworkCache, ForgetsTheLeastRecentlyUsedWhenTheBudgetIsSpent) {
  const TemporaryFolder folder;
  const std::string path = folder / "cover.png";
  write_bytes(path, as_text(png_picture(50, 50, 0x112233)));
  constexpr std::size_t room_for_two = 2 * (50 * 50 * 4 + 200);
  ArtworkCache cache{room_for_two};
  cache.picture(track_with_picture(1, path), 50);
  cache.picture(track_with_picture(2, path), 50);
  cache.picture(track_with_picture(1, path), 50);
  cache.picture(track_with_picture(3, path), 50);
  EXPECT_LE(cache.bytes_kept(), room_for_two);
  ASSERT_EQ(cache.decode_count(), 3u);
  cache.picture(track_with_picture(1, path), 50);
  EXPECT_EQ(cache.decode_count(), 3u);
  cache.picture(track_with_picture(2, path), 50);
  EXPECT_EQ(cache.decode_count(), 4u);
}

TEST(ArtworkCache, ReturnsAPictureLargerThanTheBudgetWithoutKeepingIt) {
  const TemporaryFolder folder;
  const std::string path = folder / "cover.png";
  write_bytes(path, as_text(png_picture(50, 50, 0x112233)));
  ArtworkCache cache{1000};
  EXPECT_TRUE(cache.picture(track_with_picture(1, path), 50));
  EXPECT_EQ(cache.bytes_kept(), 0u);
}

TEST(ArtworkCache, ABrokenPictureIsLoggedOnceAndNotTriedAgain) {
  const TemporaryFolder folder;
  const std::string path = folder / "cover.jpg";
  write_bytes(path, "no picture");
  const CapturedLog log;
  ArtworkCache cache{1 << 20};
  EXPECT_FALSE(cache.picture(track_with_picture(9, path), 50));
  EXPECT_FALSE(cache.picture(track_with_picture(9, path), 50));
  EXPECT_FALSE(cache.picture(track_with_picture(9, path), 100));
  EXPECT_EQ(cache.decode_count(), 1u);
  EXPECT_EQ(log.count("cannot be shown"), 1);
}

TEST(ArtworkCache, ASongWithoutArtworkHasNoPicture) {
  ArtworkCache cache{1 << 20};
  EXPECT_FALSE(cache.picture(Track{}, 50));
  EXPECT_EQ(cache.decode_count(), 0u);
}

TEST(ArtworkCache, ReadsThePictureInsideTheSong) {
  const TemporaryFolder folder;
  const std::string path = folder / "song.mp3";
  write_song(path, {}, jpeg_picture(60, 30, 0xabcdef));
  Track track;
  track.artwork_key = 3;
  track.path = path;
  ArtworkCache cache{1 << 20};
  const auto picture = cache.picture(track, 100);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 60);
  EXPECT_EQ(picture->height, 30);
}
