#pragma once

namespace host::uikit {

/// One axis of the offsets that a scroll view may rest at, in points.
struct OffsetRange {
  double minimum = 0;
  double maximum = 0;

  double clamp(double offset) const {
    return offset < minimum ? minimum : offset > maximum ? maximum : offset;
  }
  bool contains(double offset) const { return offset >= minimum && offset <= maximum; }
};

/// The page at which a paging view comes to rest: the one nearest to where the content would have
/// come to rest by itself, `predicted_end`, but never further than the next page of `offset`, where
/// the finger left it.
double page_target(double offset, double predicted_end, double page_length, OffsetRange range);

}  // namespace host::uikit
