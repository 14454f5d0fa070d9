#include "host/quartzcore/drawing/path_part.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace host::quartzcore {
namespace {

struct DestroyPath {
  void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
};
using FlatPath = std::unique_ptr<cairo_path_t, DestroyPath>;

FlatPath flattened(const Path& path) {
  cairo_t* scratch = scratch_drawing();
  cairo_new_path(scratch);
  cairo_set_tolerance(scratch, 0.02);
  path.add_to(scratch);
  return FlatPath(cairo_copy_path_flat(scratch));
}

/// Calls `piece` with the two ends of each straight piece and its length.
template <class Piece>
void walk(const cairo_path_t& flat, Piece piece) {
  CGPoint at, first;
  for (int i = 0; i < flat.num_data; i += flat.data[i].header.length) {
    const auto kind = flat.data[i].header.type;
    const bool closes = kind == CAIRO_PATH_CLOSE_PATH;
    const CGPoint to = closes ? first : CGPoint{flat.data[i + 1].point.x, flat.data[i + 1].point.y};
    if (kind == CAIRO_PATH_MOVE_TO) {
      first = to;
    } else {
      piece(at, to, std::hypot(to.x - at.x, to.y - at.y));
    }
    at = to;
  }
}

double length_of(const cairo_path_t& flat) {
  double length = 0;
  walk(flat, [&](CGPoint, CGPoint, double part) { length += part; });
  return length;
}

/// `begin` and `end` are lengths along the path.
void add_between(const cairo_path_t& flat, double begin, double end, cairo_t* drawing) {
  double walked = 0;
  bool connected = false;
  walk(flat, [&](CGPoint from, CGPoint to, double part) {
    const double low = std::max(begin, walked) - walked;
    const double high = std::min(end, walked + part) - walked;
    walked += part;
    if (part <= 0 || high <= low) {
      connected = false;
      return;
    }
    const auto at = [&](double distance) {
      return CGPoint{from.x + (to.x - from.x) * distance / part,
                     from.y + (to.y - from.y) * distance / part};
    };
    if (!connected) cairo_move_to(drawing, at(low).x, at(low).y);
    cairo_line_to(drawing, at(high).x, at(high).y);
    connected = true;
  });
}

}  // namespace

void add_part(const Path& path, double start, double end, cairo_t* drawing) {
  start = std::clamp(start, 0.0, 1.0);
  end = std::clamp(end, 0.0, 1.0);
  if (start <= 0 && end >= 1) return path.add_to(drawing);
  const FlatPath flat = flattened(path);
  const double length = length_of(*flat);
  add_between(*flat, start * length, end * length, drawing);
}

}  // namespace host::quartzcore
