#pragma once

#include <cstddef>
#include <optional>

#include "platform/CoreGraphics/CGGeometry.h"

namespace host::springboard {

/// The height of the status bar in points, and the top of every page's list view.
inline constexpr CGFloat kStatusBarHeight = 20;

/// The positions of icons on one screen. All lengths are in points; a list view's points are in its
/// own coordinates.
struct GridMetrics {
  std::size_t columns = 4;
  std::size_t rows = 4;
  std::size_t dock_capacity = 4;
  CGFloat icon_side = 60;
  CGPoint first_icon;
  CGSize pitch;
  CGSize screen;
  CGFloat dock_height = 96;
  CGFloat dock_icon_top = 16;

  /// Returns the grid of a screen of this size. A height between two known ones gets the rows of
  /// the lower.
  static GridMetrics for_screen(CGSize screen);

  std::size_t page_capacity() const { return columns * rows; }
  /// The size of an icon view: the image with its label below.
  CGSize icon_view_size() const;
  /// The frame of a page's list view in the scroll view's content.
  CGRect page_frame(std::size_t page) const;
  CGRect dock_frame() const;
  /// The centre of the page dots, in screen coordinates.
  CGPoint page_dots_centre() const;

  /// The icon view's origin in a page's list view.
  CGPoint page_origin(std::size_t index) const;
  /// The icon view's origin in the dock's list view, with `count` icons spread over its width.
  CGPoint dock_origin(std::size_t index, std::size_t count) const;
  /// The slot whose cell contains the point of a page's list view; for a point outside all cells,
  /// the nearest one.
  std::size_t page_index_at(CGPoint point) const;
  std::size_t dock_index_at(CGPoint point, std::size_t count) const;
};

/// The three-by-three grid of an open folder.
struct FolderMetrics {
  static constexpr std::size_t kColumns = 3;
  static constexpr std::size_t kCapacity = 9;

  explicit FolderMetrics(const GridMetrics& grid);

  CGRect panel;  ///< In screen coordinates.
  CGPoint first_icon;
  CGSize pitch;

  CGPoint origin(std::size_t index) const;
  std::size_t index_at(CGPoint point) const;
};

}  // namespace host::springboard
