#include "host/uikit/keyboard_layout/board_metrics.h"

#include <cmath>

namespace host::uikit {
namespace {

/// The keyboards of the phones of 2014, by screen width, and of the tablet.
struct Form {
  double widest_screen;
  double height, columns, gap, side, top, key_height, row_pitch, edge_key_columns;
  double letter_size, word_size;
};

constexpr double kPhoneColumns = 10;
constexpr double kTabletColumns = 11;
constexpr Form kPhoneForms[] = {
    {320, 216, kPhoneColumns, 6, 3, 11, 39, 54, 1.31, 22, 16},
    {375, 216, kPhoneColumns, 6, 3, 8, 42, 54, 1.28, 23, 16},
    {HUGE_VAL, 226, kPhoneColumns, 6, 4, 8, 45, 56, 1.28, 24, 17},
};
constexpr Form kTabletForm = {HUGE_VAL, 264, kTabletColumns, 12, 6, 8, 55, 64, 1, 24, 18};

const Form& form_of(const DeviceModel& device) {
  if (device.is_tablet) return kTabletForm;
  const Form* form = kPhoneForms;
  while (device.width > form->widest_screen)
    ++form;
  return *form;
}

}  // namespace

double BoardMetrics::to_pixel(double points) const {
  return std::round(points * scale) / scale;
}

CGRect BoardMetrics::cell(int row, double column, double wide) const {
  const double left = to_pixel(side + column * pitch);
  const double right = to_pixel(side + (column + wide) * pitch) - gap;
  return {left, top + row * row_pitch, right - left, key_height};
}

BoardMetrics metrics_of(const DeviceModel& device) {
  const Form& form = form_of(device);
  BoardMetrics made;
  made.screen = {device.width, device.height};
  made.scale = device.scale;
  made.is_tablet = device.is_tablet;
  made.height = form.height;
  made.columns = form.columns;
  made.gap = form.gap;
  const double room = device.width - 2 * form.side + form.gap;
  made.pitch = std::floor(room / form.columns * device.scale) / device.scale;
  // The remainder that does not fit whole pixels is left at both edges.
  made.side = (device.width + form.gap - form.columns * made.pitch) / 2;
  made.top = form.top;
  made.key_height = form.key_height;
  made.row_pitch = form.row_pitch;
  made.edge_key_columns = form.edge_key_columns;
  made.letter_size = form.letter_size;
  made.word_size = form.word_size;
  return made;
}

}  // namespace host::uikit
