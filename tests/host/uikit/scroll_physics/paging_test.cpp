#include "host/uikit/scroll_physics/paging.h"

#include <gtest/gtest.h>

namespace host::uikit {
namespace {

constexpr double kPage = 375;
constexpr OffsetRange kThreePages{0, 2 * kPage};

TEST(Paging, ASlowReleaseSnapsToTheNearestPage) {
  EXPECT_EQ(page_target(150, 150, kPage, kThreePages), 0);
  EXPECT_EQ(page_target(200, 200, kPage, kThreePages), kPage);
}

TEST(Paging, AFlickSnapsFromThePredictedEndAndNotFromWhereTheFingerLeft) {
  EXPECT_EQ(page_target(60, 260, kPage, kThreePages), kPage);
  EXPECT_EQ(page_target(320, 120, kPage, kThreePages), 0);
}

TEST(Paging, AFlickTurnsOnePageHoweverFastItIs) {
  EXPECT_EQ(page_target(20, 5000, kPage, kThreePages), kPage);
  EXPECT_EQ(page_target(700, -5000, kPage, kThreePages), kPage);
}

TEST(Paging, FromExactlyAPageAFlickTurnsToTheNeighbour) {
  EXPECT_EQ(page_target(kPage, 5000, kPage, kThreePages), 2 * kPage);
  EXPECT_EQ(page_target(kPage, -5000, kPage, kThreePages), 0);
  EXPECT_EQ(page_target(kPage, kPage, kPage, kThreePages), kPage);
}

TEST(Paging, BeyondTheLastPageItStaysInRange) {
  EXPECT_EQ(page_target(780, 2000, kPage, kThreePages), 2 * kPage);
  EXPECT_EQ(page_target(-40, -900, kPage, kThreePages), 0);
}

TEST(Paging, WithoutAPageLengthItOnlyClampsToTheRange) {
  EXPECT_EQ(page_target(30, 90, 0, {0, 20}), 20);
}

}  // namespace
}  // namespace host::uikit
