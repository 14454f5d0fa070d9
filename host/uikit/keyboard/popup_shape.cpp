#include "host/uikit/keyboard/popup_shape.h"

#include <algorithm>
#include <cmath>

namespace host::uikit {
namespace {

constexpr double kEdge = 2;
// How far the head extends beyond the key on each side, relative to the key's width.
constexpr double kOverhang = 0.4;
constexpr double kNeck = 12;
constexpr double kTallerThanKey = 8;
constexpr double kHeadCorner = 10;
constexpr double kKeyCorner = 5;
constexpr double kCellPadding = 6;
constexpr double kWiderThanKey = 4;

double keep_on_screen(const BoardMetrics& metrics, double left, double width) {
  return std::clamp(left, kEdge, std::max(kEdge, metrics.screen.width - kEdge - width));
}

CGRect head_above(const BoardMetrics& metrics, CGRect key, double left, double width) {
  const double height = metrics.key_height + kTallerThanKey;
  return {metrics.to_pixel(keep_on_screen(metrics, left, width)), key.min_y() - kNeck - height,
          width, height};
}

/// One side of the balloon from its head down to its key; `out` is 1 for the right side and -1 for
/// the left side, whose path runs upwards.
struct Side {
  double head, key, top, neck, bottom, out;

  bool is_ledge() const { return out * (head - key) > 2 * kHeadCorner; }
};

void add_right(cairo_t* drawing, const Side& side) {
  if (side.is_ledge()) {
    cairo_line_to(drawing, side.head, side.top - kHeadCorner);
    cairo_arc(drawing, side.head - kHeadCorner, side.top - kHeadCorner, kHeadCorner, 0, M_PI_2);
    cairo_line_to(drawing, side.key + kNeck, side.top);
    cairo_curve_to(drawing, side.key + kNeck / 2, side.top, side.key, side.top + kNeck / 2,
                   side.key, side.neck);
  } else {
    cairo_line_to(drawing, side.head, side.top - kHeadCorner / 2);
    cairo_curve_to(drawing, side.head, side.top + kNeck * 0.6, side.key, side.top + kNeck * 0.4,
                   side.key, side.neck + kNeck / 2);
  }
  cairo_line_to(drawing, side.key, side.bottom - kKeyCorner);
  cairo_arc(drawing, side.key - kKeyCorner, side.bottom - kKeyCorner, kKeyCorner, 0, M_PI_2);
}

void add_left(cairo_t* drawing, const Side& side) {
  cairo_arc(drawing, side.key + kKeyCorner, side.bottom - kKeyCorner, kKeyCorner, M_PI_2, M_PI);
  if (side.is_ledge()) {
    cairo_line_to(drawing, side.key, side.neck);
    cairo_curve_to(drawing, side.key, side.top + kNeck / 2, side.key - kNeck / 2, side.top,
                   side.key - kNeck, side.top);
    cairo_arc(drawing, side.head + kHeadCorner, side.top - kHeadCorner, kHeadCorner, M_PI_2, M_PI);
  } else {
    cairo_line_to(drawing, side.key, side.neck + kNeck / 2);
    cairo_curve_to(drawing, side.key, side.top + kNeck * 0.4, side.head, side.top + kNeck * 0.6,
                   side.head, side.top - kHeadCorner / 2);
  }
}

}  // namespace

CGRect PopupShape::cell(std::size_t index) const {
  const double along = static_cast<double>(index) * cell_width;
  const double left = grows_left ? head.max_x() - kCellPadding - along - cell_width
                                 : head.min_x() + kCellPadding + along;
  return {left, head.min_y(), cell_width, head.size.height};
}

std::size_t PopupShape::cell_at(double x) const {
  const double along =
      grows_left ? head.max_x() - kCellPadding - x : x - head.min_x() - kCellPadding;
  const double index =
      std::clamp(std::floor(along / cell_width), 0.0, static_cast<double>(count - 1));
  return static_cast<std::size_t>(index);
}

CGRect PopupShape::bounds() const {
  const double left = std::min(key.min_x(), head.min_x());
  const double right = std::max(key.max_x(), head.max_x());
  return {left, head.min_y(), right - left, key.max_y() - head.min_y()};
}

void PopupShape::add_outline(cairo_t* drawing) const {
  const Side right{head.max_x(), std::min(key.max_x(), head.max_x()),
                   head.max_y(), head.max_y() + kNeck,
                   key.max_y(),  1};
  const Side left{head.min_x(), std::max(key.min_x(), head.min_x()),
                  head.max_y(), head.max_y() + kNeck,
                  key.max_y(),  -1};
  cairo_new_sub_path(drawing);
  cairo_arc(drawing, head.min_x() + kHeadCorner, head.min_y() + kHeadCorner, kHeadCorner, M_PI,
            3 * M_PI_2);
  cairo_arc(drawing, head.max_x() - kHeadCorner, head.min_y() + kHeadCorner, kHeadCorner, -M_PI_2,
            0);
  add_right(drawing, right);
  add_left(drawing, left);
  cairo_close_path(drawing);
}

PopupShape preview_shape(const BoardMetrics& metrics, CGRect key) {
  PopupShape shape;
  shape.key = key;
  const double overhang = metrics.to_pixel(key.size.width * kOverhang);
  shape.head = head_above(metrics, key, key.min_x() - overhang, key.size.width + 2 * overhang);
  shape.cell_width = shape.head.size.width - 2 * kCellPadding;
  return shape;
}

PopupShape accents_shape(const BoardMetrics& metrics, CGRect key, std::size_t count) {
  PopupShape shape;
  shape.key = key;
  shape.count = count;
  const auto cells = static_cast<double>(count);
  const double room = metrics.screen.width - 2 * (kEdge + kCellPadding);
  shape.cell_width = metrics.to_pixel(std::min(key.size.width + kWiderThanKey, room / cells));
  shape.grows_left = key.centre().x > metrics.screen.width / 2;
  const double width = cells * shape.cell_width + 2 * kCellPadding;
  const double reach = shape.cell_width / 2 + kCellPadding;
  const double left = shape.grows_left ? key.centre().x + reach - width : key.centre().x - reach;
  shape.head = head_above(metrics, key, left, width);
  return shape;
}

}  // namespace host::uikit
