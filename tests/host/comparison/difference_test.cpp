#include "host/comparison/difference.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>
#include <filesystem>
#include <fstream>

#include "host/comparison/stored_picture.h"
#include "tests/host/launcher/temporary_folder.h"

namespace {

using namespace host;
using comparison::difference_of;
using comparison::reason_not_equal;
using comparison::StoredPicture;
using testing::HasSubstr;

constexpr std::uint32_t kGrey = 0xFF808080;
constexpr std::uint32_t kNearlyGrey = 0xFF80857E;

/// A picture of its own pixels, with a margin at the end of each row that does not count.
struct Pixels {
  int width;
  std::vector<std::uint32_t> all;

  explicit Pixels(int w, int height)
      : width(w), all(static_cast<std::size_t>(w + 1) * static_cast<std::size_t>(height), kGrey) {}
  std::uint32_t& at(int x, int y) { return all[static_cast<std::size_t>(y * (width + 1) + x)]; }
  screen::Picture picture() const {
    return {reinterpret_cast<const unsigned char*>(all.data()), width,
            static_cast<int>(all.size()) / (width + 1), (width + 1) * 4};
  }
};

class Comparisons : public testing::Test {
 protected:
  std::string file(const std::string& name) const { return folder_.path() / name; }
  void store(const Pixels& pixels) const {
    ASSERT_EQ(screen::write_png(pixels.picture(), file("stored.png")), std::nullopt);
  }
  std::string reason(const Pixels& shown) const {
    return reason_not_equal(shown.picture(), file("stored.png"), file("marked.png"))
        .value_or("equal");
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(Comparisons, OfEqualPicturesFindNothing) {
  const Pixels pixels(5, 3);
  store(pixels);
  EXPECT_EQ(reason(pixels), "equal");
  EXPECT_FALSE(std::filesystem::exists(file("marked.png")));
}

TEST_F(Comparisons, CountThePixelsAndTellTheLargestDifferenceOfAColour) {
  Pixels pixels(5, 3);
  store(pixels);
  pixels.at(4, 2) = kNearlyGrey;
  pixels.at(0, 0) = 0xFF808081;
  EXPECT_EQ(reason(pixels), "the screen differs from " + file("stored.png") +
                                " in 2 of 15 pixels, by at most 5 of 255; the difference is in " +
                                file("marked.png"));
}

TEST_F(Comparisons, MarkWhatDiffersInRedOnThePalePicture) {
  Pixels pixels(5, 3);
  store(pixels);
  pixels.at(4, 2) = kNearlyGrey;
  reason(pixels);
  std::string problem;
  const auto marked = StoredPicture::read(file("marked.png"), problem);
  ASSERT_TRUE(marked) << problem;
  const auto picture = marked->picture();
  ASSERT_EQ(picture.width, 5);
  ASSERT_EQ(picture.height, 3);
  const auto at = [&](int x, int y) {
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, picture.pixels + y * picture.stride + x * 4, 4);
    return pixel & 0xFFFFFF;
  };
  EXPECT_EQ(at(4, 2), 0xE00000u);
  EXPECT_EQ(at(3, 2), 0xE0E0E0u);
  EXPECT_EQ(at(0, 0), 0xE0E0E0u);
}

TEST_F(Comparisons, DoNotHeedTransparency) {
  Pixels one(2, 1);
  const Pixels other(2, 1);
  one.at(1, 0) = kGrey & 0xFFFFFF;
  EXPECT_EQ(difference_of(one.picture(), other.picture()).pixels, 0u);
}

TEST_F(Comparisons, OfDifferentSizesNameBoth) {
  store(Pixels(5, 3));
  EXPECT_EQ(reason(Pixels(3, 5)),
            "the screen has 3 × 5 pixels, and " + file("stored.png") + " has 5 × 3");
}

TEST_F(Comparisons, WithWhatIsNoPictureSayWhy) {
  const Pixels pixels(5, 3);
  EXPECT_EQ(reason(pixels), file("stored.png") + ": No such file or directory");
  std::ofstream(file("stored.png")) << "no picture";
  EXPECT_THAT(reason(pixels), HasSubstr(file("stored.png") + ": "));
  std::filesystem::remove(file("stored.png"));
  ASSERT_EQ(mkfifo(file("stored.png").c_str(), 0600), 0);
  EXPECT_EQ(reason(pixels), file("stored.png") + ": it is not a file");
}

TEST_F(Comparisons, TellWhenTheDifferenceCannotBeWritten) {
  Pixels pixels(5, 3);
  store(pixels);
  pixels.at(0, 0) = kNearlyGrey;
  const auto reason =
      reason_not_equal(pixels.picture(), file("stored.png"), file("missing/marked.png"));
  ASSERT_TRUE(reason);
  EXPECT_THAT(*reason, HasSubstr("in 1 of 15 pixels"));
  EXPECT_THAT(*reason, HasSubstr("no picture of the difference: "));
}

}  // namespace
