#pragma once

#include "host/runtime/device_model.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// The measures of a device's keyboard, in points. Keys lie on a grid whose columns are a whole
/// number of pixels wide, so all letters have equal widths and gaps.
struct BoardMetrics {
  CGSize screen;
  double scale = 2;
  bool is_tablet = false;
  double height = 0;
  double columns = 0;
  /// From the left of one column to the left of the next.
  double pitch = 0;
  double gap = 0;
  /// Left of the first column and right of the last.
  double side = 0;
  double top = 0;
  double key_height = 0;
  double row_pitch = 0;
  /// The width of the shift and backspace keys, in columns.
  double edge_key_columns = 0;
  double letter_size = 0;
  double word_size = 0;

  double to_pixel(double points) const;
  /// Returns the frame of a key in `row` that begins at `column` and is `columns` wide.
  CGRect cell(int row, double column, double columns) const;
};

BoardMetrics metrics_of(const DeviceModel& device);

}  // namespace host::uikit
