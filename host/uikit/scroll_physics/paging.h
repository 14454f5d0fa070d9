#pragma once

namespace host::uikit {

/// The offsets at which a scroll view may rest, along one axis, in points.
struct OffsetRange {
  double minimum = 0;
  double maximum = 0;

  double clamp(double offset) const {
    return offset < minimum ? minimum : offset > maximum ? maximum : offset;
  }
  bool contains(double offset) const { return offset >= minimum && offset <= maximum; }
};

/// Returns the page at which a paging view comes to rest: the one nearest to `predicted_end`, where
/// the content would stop without pages, but at most one page away from `offset`, where the finger
/// left it.
double page_target(double offset, double predicted_end, double page_length, OffsetRange range);

}  // namespace host::uikit
