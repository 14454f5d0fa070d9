#pragma once

#include <cairo.h>

#include <cmath>
#include <vector>

#include "host/quartzcore/drawing/path.h"

namespace sonavue::test {

/// The end points of a path's segments, in order. Closing segments are omitted.
inline std::vector<CGPoint> path_points(CGPathRef path) {
  std::vector<CGPoint> points;
  if (!path) return points;
  cairo_t* drawing = host::quartzcore::scratch_drawing();
  cairo_save(drawing);
  // Cairo rounds points to fractions of a pixel; scaling up reduces the error.
  cairo_scale(drawing, 1000, 1000);
  cairo_new_path(drawing);
  host::quartzcore::path_of(path)->add_to(drawing);
  cairo_path_t* pieces = cairo_copy_path(drawing);
  for (int i = 0; i < pieces->num_data; i += pieces->data[i].header.length) {
    const cairo_path_data_t* piece = &pieces->data[i];
    // A close is followed by a move back to the start, which is not part of the path.
    if (piece->header.type == CAIRO_PATH_CLOSE_PATH) break;
    const auto& end = piece[piece->header.length - 1].point;
    points.push_back({end.x, end.y});
  }
  cairo_path_destroy(pieces);
  cairo_new_path(drawing);
  cairo_restore(drawing);
  return points;
}

/// Whether the path ends with a closed subpath.
inline bool path_is_closed(CGPathRef path) {
  cairo_t* drawing = host::quartzcore::scratch_drawing();
  cairo_new_path(drawing);
  host::quartzcore::path_of(path)->add_to(drawing);
  cairo_path_t* pieces = cairo_copy_path(drawing);
  bool closed = false;
  for (int i = 0; i < pieces->num_data; i += pieces->data[i].header.length)
    closed = closed || pieces->data[i].header.type == CAIRO_PATH_CLOSE_PATH;
  cairo_path_destroy(pieces);
  cairo_new_path(drawing);
  return closed;
}

/// The angle that a path of arcs around `centre` sweeps. Each segment is at most a quarter turn.
inline double swept_angle(CGPathRef path, CGPoint centre) {
  const std::vector<CGPoint> points = path_points(path);
  double sum = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    const double from = std::atan2(points[i - 1].y - centre.y, points[i - 1].x - centre.x);
    const double to = std::atan2(points[i].y - centre.y, points[i].x - centre.x);
    sum += std::remainder(to - from, 2 * M_PI);
  }
  return sum;
}

}  // namespace sonavue::test
