#include "host/uikit/scroll_physics/paging.h"

#include <algorithm>
#include <cmath>

namespace host::uikit {

double page_target(double offset, double predicted_end, double page_length, OffsetRange range) {
  if (page_length <= 0) return range.clamp(offset);
  const double here = offset / page_length;
  const double lowest = predicted_end < offset ? std::ceil(here) - 1 : std::floor(here);
  const double highest = predicted_end > offset ? std::floor(here) + 1 : std::ceil(here);
  const double page = std::clamp(std::round(predicted_end / page_length), lowest, highest);
  return range.clamp(page * page_length);
}

}  // namespace host::uikit
