#include "host/uikit/scroll_physics/row_layout.h"

#include <gtest/gtest.h>

namespace host::uikit {
namespace {

RowHeights heights_of(const std::vector<double>& heights) {
  RowHeights rows;
  for (const double height : heights)
    rows.add(height);
  return rows;
}

RowLayout two_sections() {
  return RowLayout(31, {{20, RowHeights::uniform(3, 44), 0}, {0, heights_of({10, 30, 50}), 12}}, 5);
}

TEST(RowLayout, EverythingIsBelowWhatPrecedesIt) {
  const RowLayout layout = two_sections();
  EXPECT_EQ(layout.section_header(0).begin, 31);
  EXPECT_EQ(layout.row({0, 0}).begin, 51);
  EXPECT_EQ(layout.row({0, 2}).end, 51 + 3 * 44);
  EXPECT_EQ(layout.row({1, 1}).begin, 183 + 10);
  EXPECT_EQ(layout.row({1, 1}).length(), 30);
  EXPECT_EQ(layout.section_footer(1).begin, 183 + 90);
  EXPECT_EQ(layout.height(), 183 + 90 + 12 + 5);
  EXPECT_EQ(layout.table_footer().length(), 5);
}

TEST(RowLayout, ARowIsFoundAtEachOfItsPointsAndNotAtHeadersAndFooters) {
  const RowLayout layout = two_sections();
  EXPECT_EQ(layout.row_at(30), std::nullopt);
  EXPECT_EQ(layout.row_at(40), std::nullopt);
  EXPECT_EQ(layout.row_at(51), (RowPlace{0, 0}));
  EXPECT_EQ(layout.row_at(94.9), (RowPlace{0, 0}));
  EXPECT_EQ(layout.row_at(95), (RowPlace{0, 1}));
  EXPECT_EQ(layout.row_at(183), (RowPlace{1, 0}));
  EXPECT_EQ(layout.row_at(272.5), (RowPlace{1, 2}));
  EXPECT_EQ(layout.row_at(275), std::nullopt);
  EXPECT_EQ(layout.row_at(1000), std::nullopt);
  EXPECT_EQ(layout.row_at(-1), std::nullopt);
}

TEST(RowLayout, RowsInASpanAreThoseThatOverlapIt) {
  const RowLayout layout = two_sections();
  const std::vector<RowPlace> expected{{0, 2}, {1, 0}, {1, 1}};
  EXPECT_EQ(layout.rows_in({139, 200}), expected);
  EXPECT_TRUE(layout.rows_in({-50, 31}).empty());
  EXPECT_TRUE(layout.rows_in({500, 900}).empty());
  EXPECT_EQ(layout.rows_in({-100, 1000}).size(), 6u);
}

TEST(RowLayout, AnEmptyTableHasNoRows) {
  const RowLayout layout(0, {}, 0);
  EXPECT_EQ(layout.height(), 0);
  EXPECT_EQ(layout.row_at(0), std::nullopt);
  EXPECT_TRUE(layout.rows_in({0, 100}).empty());
  EXPECT_FALSE(layout.contains({0, 0}));
}

TEST(RowLayout, AnEmptySectionIsSkipped) {
  const RowLayout layout(
      0, {{0, RowHeights::uniform(0, 44), 0}, {0, RowHeights::uniform(2, 44), 0}}, 0);
  EXPECT_EQ(layout.row_at(0), (RowPlace{1, 0}));
  EXPECT_EQ(layout.rows_in({0, 200}).size(), 2u);
}

TEST(RowLayout, RowsWithoutHeightAreNeverFound) {
  const RowLayout layout(0, {{0, RowHeights::uniform(5, 0), 0}}, 0);
  EXPECT_EQ(layout.row_at(0), std::nullopt);
  EXPECT_TRUE(layout.rows_in({0, 10}).empty());
}

TEST(RowHeights, RowsOfDifferentHeightsAreFoundAmongAHundredThousand) {
  std::vector<double> heights(100000, 35);
  heights[7] = 90;
  const RowHeights rows = heights_of(heights);
  EXPECT_EQ(rows.total(), 100000 * 35.0 + 55);
  EXPECT_EQ(rows.row_at(rows.begin_of(99999) + 1), 99999);
  EXPECT_EQ(rows.row_at(8 * 35 + 54), 7);
  EXPECT_EQ(rows.row_at(8 * 35 + 55), 8);
}

TEST(RowHeights, TheFirstRowOfAnotherHeightMovesNoPrecedingRow) {
  const RowHeights rows = heights_of({35, 35, 35, 20, 35});
  EXPECT_EQ(rows.count(), 5);
  EXPECT_EQ(rows.begin_of(3), 105);
  EXPECT_EQ(rows.begin_of(4), 125);
  EXPECT_EQ(rows.total(), 160);
}

TEST(RowHeights, RowsOfOneHeightAreOnlyCounted) {
  EXPECT_EQ(heights_of({44, 44, 44}).total(), 132);
  EXPECT_EQ(heights_of({0, 44}).total(), 44);
}

TEST(RowHeights, ANegativeCountMeansNoRows) {
  EXPECT_EQ(RowHeights::uniform(-3, 44).count(), 0);
}

}  // namespace
}  // namespace host::uikit
