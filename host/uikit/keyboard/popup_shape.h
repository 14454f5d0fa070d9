#pragma once

#include <cairo.h>

#include "host/uikit/keyboard_layout/board_metrics.h"

namespace host::uikit {

/// The balloon above a pressed key: a head with one or more cells, on a stem that covers the key.
/// In the keyboard's points; the head may extend above the keyboard, but never beyond the screen's
/// sides.
struct PopupShape {
  CGRect key;
  CGRect head;
  std::size_t count = 1;
  double cell_width = 0;
  /// Whether the cells extend from the key to the left.
  bool grows_left = false;

  CGRect cell(std::size_t index) const;
  /// Returns the cell for a finger at this distance from the left.
  std::size_t cell_at(double x) const;
  CGRect bounds() const;
  /// Adds the outline to the context's path.
  void add_outline(cairo_t* drawing) const;
};

PopupShape preview_shape(const BoardMetrics& metrics, CGRect key);
/// The shape for `count` letters, the first of which is above the key.
PopupShape accents_shape(const BoardMetrics& metrics, CGRect key, std::size_t count);

}  // namespace host::uikit
