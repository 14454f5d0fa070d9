#pragma once

#include "host/runtime/device_model.h"
#include "platform/CoreGraphics/CGGeometry.h"

namespace host::uikit {

/// The measures of a device's keyboard, in points. Keys stand on a grid whose columns are a whole
/// number of pixels wide, so that all letters are equally wide and stand equally far apart.
struct BoardMetrics {
  CGSize screen;
  double scale = 2;
  bool is_tablet = false;
  double height = 0;
  double columns = 0;
  /// From one column's left to the next one's.
  double pitch = 0;
  double gap = 0;
  /// Left of the first column and right of the last one.
  double side = 0;
  double top = 0;
  double key_height = 0;
  double row_pitch = 0;
  /// How many columns the shift and the backspace key are wide.
  double edge_key_columns = 0;
  double letter_size = 0;
  double word_size = 0;

  double to_pixel(double points) const;
  /// The frame of a key in a row, from a column on, so many columns wide.
  CGRect cell(int row, double column, double columns) const;
};

BoardMetrics metrics_of(const DeviceModel& device);

}  // namespace host::uikit
