#include "host/springboard/model/grid_metrics.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host::springboard {
namespace {

constexpr CGFloat kLabelHeight = 20;

// One entry per known screen, tallest first. Distances are from the top of a page's list view.
struct ScreenRow {
  CGFloat height;
  GridMetrics grid;
};

constexpr std::array kScreens{
    ScreenRow{1024, {4, 5, 6, 76, {55, 64}, {194, 168}, {}, 124, 14}},
    ScreenRow{736, {4, 6, 4, 60, {35, 18}, {284.0 / 3, 100}, {}, 96, 16}},
    ScreenRow{667, {4, 6, 4, 60, {27, 8}, {87, 88}, {}, 96, 16}},
    ScreenRow{568, {4, 5, 4, 60, {16, 7}, {76, 88}, {}, 96, 16}},
    ScreenRow{480, {4, 4, 4, 60, {16, 7}, {76, 88}, {}, 96, 16}},
};

/// Returns the cell that contains a coordinate; cells reach halfway into the gaps between icons.
std::size_t cell_at(CGFloat coordinate, CGFloat first, CGFloat side, CGFloat pitch,
                    std::size_t cells) {
  const CGFloat gap = pitch - side;
  const CGFloat cell = std::floor((coordinate - first + gap / 2) / pitch);
  return static_cast<std::size_t>(std::clamp<CGFloat>(cell, 0, static_cast<CGFloat>(cells - 1)));
}

}  // namespace

GridMetrics GridMetrics::for_screen(CGSize screen) {
  GridMetrics grid = kScreens.back().grid;
  for (const ScreenRow& row : kScreens) {
    if (screen.height < row.height) continue;
    grid = row.grid;
    break;
  }
  grid.screen = screen;
  return grid;
}

CGSize GridMetrics::icon_view_size() const {
  return {icon_side, icon_side + kLabelHeight};
}

CGRect GridMetrics::page_frame(std::size_t page) const {
  return {static_cast<CGFloat>(page) * screen.width, kStatusBarHeight, screen.width,
          screen.height - kStatusBarHeight - dock_height};
}

CGRect GridMetrics::dock_frame() const {
  return {0, screen.height - dock_height, screen.width, dock_height};
}

CGPoint GridMetrics::page_dots_centre() const {
  const CGFloat last_row = static_cast<CGFloat>(rows - 1) * pitch.height;
  const CGFloat labels_end = kStatusBarHeight + first_icon.y + last_row + icon_view_size().height;
  return {screen.width / 2, (labels_end + dock_frame().min_y()) / 2};
}

CGPoint GridMetrics::page_origin(std::size_t index) const {
  return {first_icon.x + static_cast<CGFloat>(index % columns) * pitch.width,
          first_icon.y + static_cast<CGFloat>(index / columns) * pitch.height};
}

CGPoint GridMetrics::dock_origin(std::size_t index, std::size_t count) const {
  const CGFloat icons = static_cast<CGFloat>(count) * icon_side;
  const CGFloat gap = (screen.width - icons) / static_cast<CGFloat>(count + 1);
  return {gap + static_cast<CGFloat>(index) * (icon_side + gap), dock_icon_top};
}

std::size_t GridMetrics::page_index_at(CGPoint point) const {
  const std::size_t column = cell_at(point.x, first_icon.x, icon_side, pitch.width, columns);
  const CGSize icon = icon_view_size();
  const std::size_t row = cell_at(point.y, first_icon.y, icon.height, pitch.height, rows);
  return row * columns + column;
}

std::size_t GridMetrics::dock_index_at(CGPoint point, std::size_t count) const {
  if (count == 0) return 0;
  const CGFloat first = dock_origin(0, count).x;
  return cell_at(point.x, first, icon_side, icon_side + first, count);
}

FolderMetrics::FolderMetrics(const GridMetrics& grid) {
  const CGSize icon = grid.icon_view_size();
  const CGFloat gap = grid.icon_side / 2;
  pitch = {grid.icon_side + gap, icon.height + gap / 2};
  const CGFloat width = std::min(grid.screen.width - gap, 3 * grid.icon_side + 4 * gap);
  const CGFloat margin = (width - 3 * grid.icon_side - 2 * gap) / 2;
  const CGFloat height = 2 * pitch.height + icon.height + 2 * gap;
  const CGFloat room = grid.screen.height - grid.dock_height;
  panel = {(grid.screen.width - width) / 2, std::round((room - height) / 2 + kStatusBarHeight),
           width, height};
  first_icon = {margin, gap};
}

CGPoint FolderMetrics::origin(std::size_t index) const {
  return {first_icon.x + static_cast<CGFloat>(index % kColumns) * pitch.width,
          first_icon.y + static_cast<CGFloat>(index / kColumns) * pitch.height};
}

std::size_t FolderMetrics::index_at(CGPoint point) const {
  const CGFloat side = pitch.width * 2 / 3;
  const std::size_t column = cell_at(point.x, first_icon.x, side, pitch.width, kColumns);
  const std::size_t row = cell_at(point.y, first_icon.y, side, pitch.height, kColumns);
  return row * kColumns + column;
}

}  // namespace host::springboard
