#include <gtest/gtest.h>
#include <sys/stat.h>

#include "host/media/picture.h"
#include "host/media/scan.h"
#include "tests/support/media_fixtures.h"

using namespace host::media;
using namespace media_tests;

namespace {

// Inserts a chunk after the header: its length, name and contents, and a dummy checksum.
std::vector<std::uint8_t> png_with_chunk(std::vector<std::uint8_t> png, const char* name) {
  constexpr std::size_t end_of_header = 33;
  std::vector<std::uint8_t> chunk = {0, 0, 0, 2};
  chunk.insert(chunk.end(), name, name + 4);
  chunk.insert(chunk.end(), {0, 0, 0, 0, 0, 0});
  png.insert(png.begin() + end_of_header, chunk.begin(), chunk.end());
  return png;
}

}  // namespace

TEST(PictureHeader, HasTheSizeOfTheWholePicture) {
  EXPECT_EQ(read_picture_header(jpeg_picture(300, 200, 1)), (PictureHeader{300, 200, true}));
  EXPECT_EQ(read_picture_header(png_picture(30, 20, 1)), (PictureHeader{30, 20, true}));
}

TEST(PictureHeader, IsReadFromTheBeginningOfAFile) {
  const TemporaryFolder folder;
  write_bytes(folder / "a.jpg", as_text(jpeg_picture(3000, 2000, 1)));
  EXPECT_EQ(read_picture_file_header(folder / "a.jpg"), (PictureHeader{3000, 2000, true}));
}

TEST(PictureHeader, MayComeAfterAPreviewOfManyBytes) {
  const TemporaryFolder folder;
  std::vector<std::uint8_t> bytes = jpeg_picture(30, 20, 1);
  // Application segments of 60 KB each, before everything else.
  std::vector<std::uint8_t> segment(60'002, 0);
  segment[0] = 0xff;
  segment[1] = 0xe5;
  segment[2] = 60'000 >> 8;
  segment[3] = 60'000 & 0xff;
  for (int i = 0; i < 3; ++i)
    bytes.insert(bytes.begin() + 2, segment.begin(), segment.end());
  write_bytes(folder / "a.jpg", as_text(bytes));
  EXPECT_EQ(read_picture_file_header(folder / "a.jpg"), (PictureHeader{30, 20, true}));
}

TEST(PictureHeader, ATransparentColourMakesAPictureTranslucent) {
  EXPECT_FALSE(read_picture_header(png_with_chunk(png_picture(30, 20, 1), "tRNS")).is_opaque);
}

TEST(PictureHeader, AnUndecodablePictureHasNone) {
  EXPECT_FALSE(read_picture_header({}).is_usable());
  EXPECT_FALSE(read_picture_header(png_promise(20'000, 20'000)).is_usable());
  const auto whole = jpeg_picture(200, 200, 0x808080);
  EXPECT_FALSE(read_picture_header(std::span{whole}.first(20)).is_usable());
  const TemporaryFolder folder;
  write_bytes(folder / "letter.jpg", "no picture");
  EXPECT_FALSE(read_picture_file_header(folder / "letter.jpg").is_usable());
  EXPECT_FALSE(read_picture_file_header(folder / "missing.jpg").is_usable());
}

TEST(PictureHeader, FittedSizeIsTheSizeOfTheDecodedPicture) {
  const std::vector<std::pair<int, int>> sizes = {
      {301, 97}, {97, 301}, {240, 240}, {1000, 3}, {7, 5}};
  for (const auto& [width, height] : sizes) {
    for (const int side : {1, 30, 97, 240, 800}) {
      const auto size = fitted_size(width, height, side);
      for (const auto& bytes : {jpeg_picture(width, height, 7), png_picture(width, height, 7)}) {
        const auto picture = decode_picture(bytes, side);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width, size.width) << width << "x" << height << " to " << side;
        EXPECT_EQ(picture->height, size.height) << width << "x" << height << " to " << side;
      }
    }
  }
}

TEST(PictureHeader, ABrokenPictureInTheSongFallsBackToTheFolders) {
  const TemporaryFolder folder;
  write_song(folder / "a.flac", {}, {'n', 'o', 'n', 'e'}, 0.1);
  write_bytes(folder / "cover.png", as_text(png_picture(8, 8, 1)));
  const CapturedLog log;
  Index index{folder / "index.db"};
  const std::vector roots = {folder.path()};
  const auto scan = [&] { return scan_folders(index, roots, [](const ScanProgress&) {}); };
  EXPECT_EQ(scan().library->tracks()[0].picture_path, folder / "cover.png");
  EXPECT_EQ(log.count("a.flac cannot be shown"), 1);
  write_bytes(folder / "cover.png", "broken");
  EXPECT_FALSE(scan().library->tracks()[0].has_artwork());
  EXPECT_FALSE(scan().library->tracks()[0].has_artwork());
  EXPECT_EQ(log.count("cover.png cannot be shown"), 1);
}
