#include "host/uikit/scroll/row_paths.h"

namespace host::uikit {

NSIndexPath RowPaths::path(RowPlace place) {
  const bool is_kept = place.section == 0 && place.row >= 0 && place.row < kMostKept;
  if (!is_kept) return NSIndexPath::indexPathForRow(place.row, place.section);
  const auto row = static_cast<std::size_t>(place.row);
  if (row >= first_section_.size()) first_section_.resize(row + 1);
  objc::Ref<NSIndexPath>& kept = first_section_[row];
  if (!kept) kept.reset(NSIndexPath::indexPathForRow(place.row, place.section));
  return kept.get();
}

RowPaths& row_paths() {
  // Never destroyed: the runtime may be gone before the process ends.
  static auto* const paths = new RowPaths;
  return *paths;
}

}  // namespace host::uikit
