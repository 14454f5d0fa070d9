#include "host/springboard/model/grid_metrics.h"

#include <gtest/gtest.h>

namespace host::springboard {
namespace {

constexpr CGSize kScreens[] = {{320, 480}, {320, 568}, {375, 667}, {414, 736}, {768, 1024}};

TEST(GridMetrics, RowsFollowTheScreensHeight) {
  EXPECT_EQ(GridMetrics::for_screen({320, 480}).rows, 4u);
  EXPECT_EQ(GridMetrics::for_screen({320, 568}).rows, 5u);
  EXPECT_EQ(GridMetrics::for_screen({375, 667}).rows, 6u);
  EXPECT_EQ(GridMetrics::for_screen({414, 736}).rows, 6u);
  EXPECT_EQ(GridMetrics::for_screen({768, 1024}).rows, 5u);
}

TEST(GridMetrics, IconsAre60PointsAnd76OnTheTablet) {
  EXPECT_EQ(GridMetrics::for_screen({375, 667}).icon_side, 60);
  EXPECT_EQ(GridMetrics::for_screen({768, 1024}).icon_side, 76);
}

TEST(GridMetrics, FirstIconAndPitchOfThe667PointScreen) {
  const GridMetrics grid = GridMetrics::for_screen({375, 667});
  EXPECT_EQ(grid.page_origin(0), (CGPoint{27, 8}));
  EXPECT_EQ(grid.page_origin(3), (CGPoint{27 + 3 * 87, 8}));
  EXPECT_EQ(grid.page_origin(4), (CGPoint{27, 8 + 88}));
}

TEST(GridMetrics, TheColumnsAreCentred) {
  for (const CGSize screen : kScreens) {
    const GridMetrics grid = GridMetrics::for_screen(screen);
    const CGFloat right = screen.width - grid.page_origin(grid.columns - 1).x - grid.icon_side;
    EXPECT_NEAR(right, grid.first_icon.x, 0.01) << screen.height;
  }
}

TEST(GridMetrics, TheLastRowAndThePageDotsEndAboveTheDock) {
  for (const CGSize screen : kScreens) {
    const GridMetrics grid = GridMetrics::for_screen(screen);
    const CGPoint last = grid.page_origin(grid.page_capacity() - 1);
    const CGFloat end = kStatusBarHeight + last.y + grid.icon_view_size().height;
    EXPECT_LT(end, grid.page_dots_centre().y) << screen.height;
    EXPECT_LT(grid.page_dots_centre().y, grid.dock_frame().min_y()) << screen.height;
  }
}

TEST(GridMetrics, PagesStartBelowTheStatusBarAndAreAsWideAsTheScreen) {
  const CGRect page = GridMetrics::for_screen({375, 667}).page_frame(2);
  EXPECT_EQ(page, (CGRect{750, 20, 375, 667 - 20 - 96}));
}

TEST(GridMetrics, FourDockIconsAlignWithTheColumns) {
  const GridMetrics grid = GridMetrics::for_screen({375, 667});
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_EQ(grid.dock_origin(i, 4).x, grid.page_origin(i).x);
}

TEST(GridMetrics, FewerDockIconsSpreadEvenly) {
  const GridMetrics grid = GridMetrics::for_screen({320, 480});
  EXPECT_EQ(grid.dock_origin(0, 1).x, 130);
  EXPECT_NEAR(grid.dock_origin(0, 2).x, 200.0 / 3, 1e-9);
}

TEST(GridMetrics, APointBelongsToTheSlotWhoseCellContainsIt) {
  for (const CGSize screen : kScreens) {
    const GridMetrics grid = GridMetrics::for_screen(screen);
    for (std::size_t i = 0; i < grid.page_capacity(); ++i) {
      const CGRect icon(grid.page_origin(i), grid.icon_view_size());
      EXPECT_EQ(grid.page_index_at(icon.centre()), i);
      EXPECT_EQ(grid.page_index_at(icon.origin), i);
    }
    for (std::size_t i = 0; i < 3; ++i) {
      const CGRect icon(grid.dock_origin(i, 3), grid.icon_view_size());
      EXPECT_EQ(grid.dock_index_at(icon.centre(), 3), i);
    }
  }
}

TEST(GridMetrics, PointsOutsideTheGridBelongToTheNearestSlot) {
  const GridMetrics grid = GridMetrics::for_screen({375, 667});
  EXPECT_EQ(grid.page_index_at({-50, -50}), 0u);
  EXPECT_EQ(grid.page_index_at({900, 900}), grid.page_capacity() - 1);
  EXPECT_EQ(grid.dock_index_at({900, 0}, 0), 0u);
}

TEST(FolderMetrics, NineIconsFitThePanelWithEqualMargins) {
  for (const CGSize screen : kScreens) {
    const GridMetrics grid = GridMetrics::for_screen(screen);
    const FolderMetrics folder(grid);
    EXPECT_GE(folder.panel.min_x(), 0);
    EXPECT_GT(folder.panel.min_y(), kStatusBarHeight);
    EXPECT_LT(folder.panel.max_y(), grid.dock_frame().min_y()) << screen.height;
    const CGFloat right = folder.panel.size.width - folder.origin(2).x - grid.icon_side;
    EXPECT_NEAR(right, folder.origin(0).x, 1e-9);
    EXPECT_LT(folder.origin(8).y + grid.icon_view_size().height, folder.panel.size.height);
    for (std::size_t i = 0; i < FolderMetrics::kCapacity; ++i)
      EXPECT_EQ(folder.index_at(CGRect(folder.origin(i), grid.icon_view_size()).centre()), i);
  }
}

}  // namespace
}  // namespace host::springboard
