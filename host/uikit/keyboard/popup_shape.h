#pragma once

#include <cairo.h>

#include "host/uikit/keyboard_layout/board_metrics.h"

namespace host::uikit {

/// The balloon above a pressed key: a head with one or more cells, on a stem that covers the key.
/// In points of the keyboard; the head may lie above the keyboard's top, never beyond the screen's
/// sides.
struct PopupShape {
  CGRect key;
  CGRect head;
  std::size_t count = 1;
  double cell_width = 0;
  /// Do the cells go from the key to the left?
  bool grows_left = false;

  CGRect cell(std::size_t index) const;
  /// The cell that a finger at this distance from the left means.
  std::size_t cell_at(double x) const;
  CGRect bounds() const;
  /// Adds the outline to the context's path.
  void add_outline(cairo_t* drawing) const;
};

PopupShape preview_shape(const BoardMetrics& metrics, CGRect key);
/// For so many letters of which the first stands above the key.
PopupShape accents_shape(const BoardMetrics& metrics, CGRect key, std::size_t count);

}  // namespace host::uikit
